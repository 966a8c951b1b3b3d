#pragma once

#include "zqbchwcx/platform/PictureBox.h"
#include "zqbchwcx/platform/UserControl.h"

#include <optional>
#include <string_view>

namespace zqbchwcx {

/// The picture of a view, with the inverted rectangle that a rubber band lays over it. It lies in the view's control,
/// or in a viewport there, which shows a part of it.
class Canvas {
public:
    explicit Canvas(std::string_view className) : msClassName(className) {}

    void Use(PictureBoxPtr pic) { mpicBox = std::move(pic); }
    /// Draws in a box that is a child of the viewport, whose place is in logical pixels of the view's control.
    void UseViewport(ChildControlPtr viewport, const Rect& rect);
    void MoveViewport(const Rect& rect);
    /// Nothing when the picture is no part of a viewport.
    const std::optional<Rect>& Viewport() const { return mViewport; }
    /// Throws VxError while there is no picture box.
    PictureBox& Box() const;
    bool HasBox() const { return mpicBox != nullptr; }

    /// Where a point of the picture lies in the control, and the other way.
    Point InControl(Point inPicture) const;
    Point InPicture(Point inControl) const;

    /// Replaces the inverted rectangle; nothing takes it away.
    void Overlay(const std::optional<Rect>& rect);

private:
    friend class DrawingBracket;

    Point Origin() const { return mViewport ? Point{mViewport->left, mViewport->top} : Point{}; }
    void InvertOverlay(bool bShow);

    std::string_view msClassName;
    ChildControlPtr moViewport; ///< outlives the box in it
    std::optional<Rect> mViewport;
    PictureBoxPtr mpicBox;
    std::optional<Rect> mOverlay;
    bool mbOverlayShown = false;
    int mnBrackets = 0;
};

/// Surrounds everything that draws on the picture: the inverted rectangle is away while it lives, and what was drawn
/// is shown when the outermost one ends.
class DrawingBracket {
public:
    explicit DrawingBracket(Canvas& canvas);
    ~DrawingBracket();
    DrawingBracket(const DrawingBracket&) = delete;
    DrawingBracket& operator=(const DrawingBracket&) = delete;

private:
    Canvas& mCanvas;
};

} // namespace zqbchwcx
