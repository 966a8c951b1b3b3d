#pragma once

#include "zqbchwcx/platform/PictureBox.h"

#include <optional>
#include <string_view>

namespace zqbchwcx {

/// The picture of a view, with the inverted rectangle that a rubber band lays over it.
class Canvas {
public:
    explicit Canvas(std::string_view className) : msClassName(className) {}

    void Use(PictureBoxPtr pic) { mpicBox = std::move(pic); }
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

    void InvertOverlay(bool bShow);

    std::string_view msClassName;
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
