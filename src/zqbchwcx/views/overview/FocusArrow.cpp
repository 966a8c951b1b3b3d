#include "zqbchwcx/views/overview/FocusArrow.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"

namespace zqbchwcx {
namespace {

constexpr std::int32_t RowHeight = 15;

} // namespace

void FocusArrow::Create(Toolkit& toolkit, UserControl& oControl, std::int32_t lIndentation)
{
    mCovered = MakeRect(0, 0, oControl.Width() / vxTwipsPerPixel, oControl.Height() / vxTwipsPerPixel);
    moArrowControl = toolkit.CreateChildControl(oControl, "arw_Arrow", mCovered);
    marwArrow = std::make_unique<HWCArrow>(*moArrowControl);
    marwArrow->Indentation(lIndentation);
}

void FocusArrow::Cover(const Rect& rect)
{
    if (!moArrowControl) return;
    mCovered = rect;
    moArrowControl->Move(rect);
    Update();
}

void FocusArrow::Update() noexcept
{
    G_Trap(mContext.className, "P_SetArrow", [&] {
        auto& arrow = *G_Require(marwArrow, "The arrow");
        const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
        const bool bShown =
            mContext.oStation && focus.eType == vxPositionPlace && mLayout.Shows(focus.lRack, focus.lNumber);
        const auto lRow = bShown ? mTableRow(focus) : std::nullopt;
        if (!lRow) {
            arrow.Hide();
            return;
        }
        const Rect place = mLayout.PlaceRect(focus.lRack, focus.lNumber);
        const Point start = mCanvas.InControl({place.left + mStyle.arrowStart.x, place.top + mStyle.arrowStart.y});
        const std::int32_t lRowY = RowHeight / 2 + *lRow * RowHeight + mlHeaderHeight;
        arrow.Show(start.x - mCovered.left, start.y - mCovered.top, lRowY - mCovered.top);
    });
}

void FocusArrow::Hide()
{
    if (marwArrow) marwArrow->Hide();
}

} // namespace zqbchwcx
