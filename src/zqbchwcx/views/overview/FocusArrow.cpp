#include "zqbchwcx/views/overview/FocusArrow.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"

namespace zqbchwcx {
namespace {

constexpr std::int32_t RowHeight = 15;

constexpr Rect Whole(std::int32_t lWidth, std::int32_t lHeight)
{
    return MakeRect(0, 0, lWidth / vxTwipsPerPixel, lHeight / vxTwipsPerPixel);
}

} // namespace

void FocusArrow::Create(Toolkit& toolkit, UserControl& oControl, std::int32_t lIndentation)
{
    moArrowControl = toolkit.CreateChildControl(oControl, "arw_Arrow", Whole(oControl.Width(), oControl.Height()));
    marwArrow = std::make_unique<HWCArrow>(*moArrowControl);
    marwArrow->Indentation(lIndentation);
}

void FocusArrow::Cover(std::int32_t lWidth, std::int32_t lHeight)
{
    if (!moArrowControl) return;
    moArrowControl->Move(Whole(lWidth, lHeight));
    Update();
}

void FocusArrow::Update() noexcept
{
    G_Trap(mContext.className, "P_SetArrow", [&] {
        auto& arrow = *G_Require(marwArrow, "The arrow");
        const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
        if (!mContext.oStation || focus.eType != vxPositionPlace || !mLayout.Shows(focus.lRack, focus.lNumber)) {
            arrow.Hide();
            return;
        }
        const Rect place = mLayout.PlaceRect(focus.lRack, focus.lNumber);
        const Point start = mCanvas.InControl({place.left + mStyle.arrowStart.x, place.top + mStyle.arrowStart.y});
        arrow.Show(start.x, start.y, RowHeight / 2 + (focus.lNumber - 1) * RowHeight + mlHeaderHeight);
    });
}

void FocusArrow::Hide()
{
    if (marwArrow) marwArrow->Hide();
}

} // namespace zqbchwcx
