#include "zqbchwcx/views/diag/PanelLayout.h"

#include <algorithm>
#include <initializer_list>

namespace zqbchwcx {
namespace {

constexpr std::int32_t Margin = 9;
constexpr std::int32_t Gap = 5;           ///< between rows, and between a caption and its value
constexpr std::int32_t ColumnGap = 12;    ///< before the second caption of a row
constexpr std::int32_t TextMargin = 10;   ///< of a box, above and below its text together
constexpr std::int32_t StatusLines = 3;   ///< as many as there are categories
constexpr std::int32_t ShortValue = 44;   ///< numbers of up to three digits
constexpr std::int32_t WidestShort = 120; ///< of those beside the second captions
constexpr std::int32_t TwoColumns = 700;  ///< the width from which the grid lies beside the values
constexpr std::int32_t SmallestButton = 23;

/// Where rows of captions and values go, from the top.
class Column {
public:
    Column(PanelLayout& layout, const ByPanelField<Size>& texts, const Rect& area)
        : mLayout(layout), mTexts(texts), mArea(area), mlTop(area.top)
    {
        for (const Size& text : texts) mlLine = std::max(mlLine, text.height);
    }

    std::int32_t CaptionWidth(std::initializer_list<PanelField> fields) const
    {
        std::int32_t lWidth = 0;
        for (const PanelField eField : fields) lWidth = std::max(lWidth, mTexts[eField].width);
        return std::min(lWidth, mArea.width() / 3);
    }
    void Captions(std::int32_t lWidth) { mlCaption = lWidth; }

    void Row(PanelField eField, std::int32_t lLines = 1) { Row(eField, mArea.right, lLines); }
    /// Two values in a row; the second caption begins at the same place in every such row.
    void Row(PanelField eFirst, PanelField eSecond, std::int32_t lSecondCaption)
    {
        const std::int32_t lValues = mArea.left + mlCaption + Gap;
        const std::int32_t lRest = mArea.right - lValues - ColumnGap - lSecondCaption - Gap;
        const std::int32_t lShort = std::clamp(lRest / 3, ShortValue, WidestShort);
        const std::int32_t lSecond = mArea.right - lShort - Gap - lSecondCaption;
        const std::int32_t lTop = mlTop;
        Row(eFirst, lSecond - ColumnGap, 1);
        mLayout.captions[eSecond] = MakeRect(lSecond, lTop, lSecondCaption, LineHeight());
        mLayout.values[eSecond] = MakeRect(mArea.right - lShort, lTop, lShort, LineHeight());
    }
    /// What is left down to there.
    void Rest(PanelField eField, std::int32_t lBottom)
    {
        PlaceCaption(eField);
        mLayout.values[eField] = {mArea.left + mlCaption + Gap, mlTop, mArea.right, lBottom};
    }

private:
    std::int32_t LineHeight() const { return mlLine + TextMargin; }
    void PlaceCaption(PanelField eField)
    {
        mLayout.captions[eField] = MakeRect(mArea.left, mlTop, mlCaption, LineHeight());
    }
    void Row(PanelField eField, std::int32_t lRight, std::int32_t lLines)
    {
        PlaceCaption(eField);
        const std::int32_t lBottom = mlTop + lLines * mlLine + TextMargin;
        mLayout.values[eField] = {mArea.left + mlCaption + Gap, mlTop, lRight, lBottom};
        mlTop = lBottom + Gap;
    }

    PanelLayout& mLayout;
    const ByPanelField<Size>& mTexts;
    Rect mArea;
    std::int32_t mlTop;
    std::int32_t mlLine = 0;
    std::int32_t mlCaption = 0;
};

} // namespace

PanelLayout G_PanelLayout(Size panel, const ByPanelField<Size>& captions, Size button)
{
    PanelLayout layout;
    const Rect inner = {Margin, Margin, panel.width - Margin, panel.height - Margin};
    const std::int32_t lButtonTop = inner.bottom - std::max(button.height, SmallestButton);
    layout.button = {inner.right - std::min(button.width, inner.width()), lButtonTop, inner.right, inner.bottom};

    const bool bWide = panel.width >= TwoColumns;
    const std::int32_t lMiddle = (inner.left + inner.right) / 2;
    const std::int32_t lLeftEnd = bWide ? lMiddle - ColumnGap : inner.right;
    Column values(layout, captions, {inner.left, inner.top, lLeftEnd, inner.bottom});
    const auto fields = {PanelField::ModuleName, PanelField::Status, PanelField::Address, PanelField::Place,
                         PanelField::SystemID};
    const std::int32_t lVersionCaption = values.CaptionWidth({PanelField::Version});
    values.Captions(bWide ? values.CaptionWidth(fields) : std::max(values.CaptionWidth(fields), lVersionCaption));
    const std::int32_t lSecondCaption = values.CaptionWidth({PanelField::ModuleWidth, PanelField::Rack});
    values.Row(PanelField::ModuleName);
    values.Row(PanelField::Status, StatusLines);
    values.Row(PanelField::Address, PanelField::ModuleWidth, lSecondCaption);
    values.Row(PanelField::Place, PanelField::Rack, lSecondCaption);
    values.Row(PanelField::SystemID);

    const std::int32_t lGridBottom = lButtonTop - Gap - Gap / 2;
    if (!bWide) {
        values.Rest(PanelField::Version, lGridBottom);
        return layout;
    }
    Column versions(layout, captions, {lMiddle + ColumnGap, inner.top, inner.right, inner.bottom});
    versions.Captions(lVersionCaption);
    versions.Rest(PanelField::Version, lGridBottom);
    return layout;
}

} // namespace zqbchwcx
