#include "zqbchwcx/views/overview/Canvas.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <utility>

namespace zqbchwcx {

PictureBox& Canvas::Box() const
{
    return *G_Require(mpicBox, "The picture box");
}

void Canvas::UseViewport(ChildControlPtr viewport, const Rect& rect)
{
    moViewport = std::move(viewport);
    mViewport = rect;
}

void Canvas::MoveViewport(const Rect& rect)
{
    if (!moViewport || rect == mViewport) return;
    mViewport = rect;
    moViewport->Move(rect);
}

Point Canvas::InControl(Point inPicture) const
{
    return {Origin().x + Box().Left() + inPicture.x, Origin().y + Box().Top() + inPicture.y};
}

Point Canvas::InPicture(Point inControl) const
{
    return {inControl.x - Origin().x - Box().Left(), inControl.y - Origin().y - Box().Top()};
}

void Canvas::Overlay(const std::optional<Rect>& rect)
{
    // Taken away first: whatever fails, the old one is not drawn again.
    if (const auto old = std::exchange(mOverlay, std::nullopt); old && std::exchange(mbOverlayShown, false))
        Box().DrawFocusRect(*old);
    const DrawingBracket drawing(*this);
    mOverlay = rect;
}

void Canvas::InvertOverlay(bool bShow)
{
    if (!mOverlay || mbOverlayShown == bShow) return;
    Box().DrawFocusRect(*mOverlay);
    mbOverlayShown = bShow;
}

DrawingBracket::DrawingBracket(Canvas& canvas) : mCanvas(canvas)
{
    if (mCanvas.mnBrackets == 0) mCanvas.InvertOverlay(false);
    ++mCanvas.mnBrackets;
}

DrawingBracket::~DrawingBracket()
{
    if (--mCanvas.mnBrackets > 0) return;
    G_Trap(mCanvas.msClassName, "P_ShowPicture", [&] {
        mCanvas.InvertOverlay(true);
        mCanvas.Box().Refresh();
    });
}

} // namespace zqbchwcx
