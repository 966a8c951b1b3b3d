#include "zqbchwcx/views/overview/PictureInput.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/platform/Input.h"

#include <cmath>
#include <cstdlib>
#include <utility>

namespace zqbchwcx {
namespace {

Point WholePixels(float x, float y)
{
    return {static_cast<std::int32_t>(std::lrint(x)), static_cast<std::int32_t>(std::lrint(y))};
}

bool HasLeftOrRight(std::int16_t nButton)
{
    return (nButton & (vxButtonLeft | vxButtonRight)) != 0;
}

} // namespace

PictureInput::PictureInput(const ViewContext& context, const PlaceLayout& layout, Canvas& canvas, PlaceMenu& menu,
                           DragPointer& dragPointer, RedrawGate& gate, std::string_view pictureName,
                           std::function<void()> onKeyboardFocus)
    : mContext(context), mLayout(layout), mCanvas(canvas), mMenu(menu), mDragPointer(dragPointer),
      mRubberBand(context, layout, canvas), msProcedurePrefix(std::string(pictureName) + "_"), mGate(gate),
      mOnKeyboardFocus(std::move(onKeyboardFocus))
{
}

template <class Body>
bool PictureInput::Trap(std::string_view event, Body&& body) noexcept
{
    return G_Trap(mContext.className, msProcedurePrefix + std::string(event), std::forward<Body>(body));
}

void PictureInput::MouseDown(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept
{
    Trap("MouseDown", [&] {
        const Point at = WholePixels(x, y);
        const std::int32_t lPosition = mLayout.PositionAt(at);
        mlLastMouseDownPosition = lPosition;
        mContext.MouseCtrl()->MouseDown(lPosition, nButton, nShift);
        mGate.CatchUp();
        if (!HasLeftOrRight(nButton)) return;
        if (mContext.DragDropCtrl()->IsValidDragPosition(lPosition)) moDragStart = at;
        else if (lPosition == vxNoPosition && mContext.MouseCtrl()->CanSelectByRubberBand()) mRubberBand.Start(at);
    });
}

void PictureInput::MouseMove(std::int16_t nButton, std::int16_t /*nShift*/, float x, float y) noexcept
{
    Trap("MouseMove", [&] {
        if (!HasLeftOrRight(nButton)) return;
        const Point at = WholePixels(x, y);
        if (moDragStart && IsBeyondThreshold(at)) {
            // The drag runs inside the call: a press of before it must not start another one.
            moDragStart.reset();
            mCanvas.Box().OLEDrag();
        } else if (mRubberBand.IsActive()) {
            mRubberBand.MoveTo(at);
            mOnRubberBand(at);
        }
    });
}

void PictureInput::MouseUp(std::int16_t nButton, std::int16_t nShift, float x, float y) noexcept
{
    const Point at = WholePixels(x, y);
    // The press is over, whatever its release leads to.
    if (HasLeftOrRight(nButton)) moDragStart.reset();
    const bool bTold = Trap("MouseUp", [&] {
        if (HasLeftOrRight(nButton)) mOnRubberBand(std::nullopt);
        mContext.MouseCtrl()->MouseUp(mLayout.PositionAt(at), nButton, nShift);
        mGate.CatchUp();
    });
    if (!HasLeftOrRight(nButton)) return;
    mRubberBand.Finish(at);
    if (nButton != vxButtonRight || !bTold) return;
    mMenu.Open(false);
    mGate.CatchUp();
}

void PictureInput::DblClick() noexcept
{
    Trap("DblClick", [&] {
        mContext.MouseCtrl()->DblClick(mlLastMouseDownPosition);
        mGate.CatchUp();
    });
}

void PictureInput::GotFocus() noexcept
{
    Trap("GotFocus", [&] { mOnKeyboardFocus(); });
}

void PictureInput::LostFocus() noexcept
{
    Trap("LostFocus", [&] { mOnKeyboardFocus(); });
}

void PictureInput::OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept
{
    Trap("OLEStartDrag", [&] { mContext.DragDropCtrl()->OLEStartDrag(oData, lAllowedEffects); });
}

void PictureInput::OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept
{
    Trap("OLESetData", [&] { mContext.DragDropCtrl()->OLESetData(oData, nDataFormat); });
}

void PictureInput::OLEDragOver(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                               std::int16_t nShift, float x, float y, std::int16_t nState) noexcept
{
    Trap("OLEDragOver", [&] {
        const Point at = WholePixels(x, y);
        mContext.DragDropCtrl()->OLEDragOver(mLayout.PositionAt(at), oData, lEffect, nButton, nShift, nState);
        if (nState == vxDragLeave) mDragPointer.Hide();
        else if (mContext.IsDragActive()) mDragPointer.MoveTo(at);
    });
}

void PictureInput::OLEDragDrop(const DataObjectPtr& oData, std::int32_t& lEffect, std::int16_t nButton,
                               std::int16_t nShift, float x, float y) noexcept
{
    Trap("OLEDragDrop", [&] {
        mContext.DragDropCtrl()->OLEDragDrop(mLayout.PositionAt(WholePixels(x, y)), oData, lEffect, nButton, nShift);
        mDragPointer.Hide();
        mGate.CatchUp();
    });
}

void PictureInput::OLECompleteDrag(std::int32_t& lEffect) noexcept
{
    Trap("OLECompleteDrag", [&] {
        mDragPointer.Hide();
        mContext.DragDropCtrl()->OLECompleteDrag(lEffect);
        mGate.CatchUp();
    });
}

bool PictureInput::IsBeyondThreshold(Point at) const
{
    return std::abs(at.x - moDragStart->x) >= mDragThreshold.width ||
           std::abs(at.y - moDragStart->y) >= mDragThreshold.height;
}

} // namespace zqbchwcx
