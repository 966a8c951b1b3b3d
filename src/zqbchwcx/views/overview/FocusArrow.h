#pragma once

#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/overview/Canvas.h"
#include "zqbchwcx/views/overview/HWCArrow.h"
#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/overview/PlaceStyle.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <memory>

namespace zqbchwcx {

/// The arrow of an overview, in a control that covers all of it, and where it leads: from the focused place to that
/// place's row in the table beside the overview.
class FocusArrow {
public:
    FocusArrow(const ViewContext& context, const PlaceStyle& style, const PlaceLayout& layout, const Canvas& canvas)
        : mContext(context), mStyle(style), mLayout(layout), mCanvas(canvas)
    {
    }

    void Create(Toolkit& toolkit, UserControl& oControl, std::int32_t lIndentation);
    /// Covers the overview, whose size is in twips, and shows the arrow anew.
    void Cover(std::int32_t lWidth, std::int32_t lHeight);
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
    ChildControlPtr moArrowControl;
    std::unique_ptr<HWCArrow> marwArrow;
    std::int32_t mlHeaderHeight = 41;
};

} // namespace zqbchwcx
