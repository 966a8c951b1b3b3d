#pragma once

#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/HWCArrow.h"
#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/overview/PlaceStyle.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace zqbchwcx {

/// The arrow of an overview, in a control that covers all of it, and where it leads: from the focused place to that
/// place's row in the table beside the overview.
class FocusArrow {
public:
    /// In which row of the table the place is, counted from 0 below the header; nothing when the arrow would begin or
    /// end out of view. Asked only for places that the layout shows.
    using TableRow = std::function<std::optional<std::int32_t>(const PositionInfo& place)>;

    FocusArrow(const ViewContext& context, const PlaceStyle& style, const PlaceLayout& layout, const Canvas& canvas,
               TableRow tableRow)
        : mContext(context), mStyle(style), mLayout(layout), mCanvas(canvas), mTableRow(std::move(tableRow))
    {
    }

    void Create(Toolkit& toolkit, UserControl& oControl, std::int32_t lIndentation);
    /// Covers that part of the overview, in logical pixels, and shows the arrow anew. It ends at the right edge.
    void Cover(const Rect& rect);
    /// How high the header of the table is, in logical pixels.
    void HeaderHeight(std::int32_t lPixels) { mlHeaderHeight = lPixels; }

    /// Shows the arrow of the focused place, or none.
    void Update() noexcept;
    void Hide();

private:
    const ViewContext& mContext;
    const PlaceStyle& mStyle;
    const PlaceLayout& mLayout;
    const Canvas& mCanvas;
    TableRow mTableRow;
    ChildControlPtr moArrowControl;
    Rect mCovered;
    std::unique_ptr<HWCArrow> marwArrow;
    std::int32_t mlHeaderHeight = 41;
};

} // namespace zqbchwcx
