#pragma once

#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/platform/Geometry.h"

#include <memory>
#include <string_view>

namespace zqbchwcx {

class Image;
class ImageList;

/// How an image is put on a surface. Cyan pixels (or transparent ones of a vector picture) do
/// not draw, unless the style says so.
enum class DrawStyle {
    Normal = 0,
    Transparent = 1,
    Blended = 4,            ///< mixed half and half with the system highlight colour: the selected look
    TransparentBlended = 5, ///< transparent and mixed
    Opaque = 32,            ///< without its mask: what is transparent has the background colour of the surface
    OpaqueBlended = 36,     ///< opaque and mixed
};

enum class FontWeight { Regular, Bold };

enum class Corner { TopLeft, TopRight, BottomLeft, BottomRight };

/// A persistent picture that is drawn on in logical pixels. Colours may be system-colour references.
class Surface {
public:
    virtual ~Surface() = default;

    /// Fills the rectangle.
    virtual void FillBox(const Rect& rect, OleColor color) = 0;
    /// Draws a horizontal or vertical line, one pixel wide; both end points belong to it.
    virtual void DrawLine(Point from, Point to, OleColor color) = 0;
    /// Fills the half of the square that lies in the corner, diagonal included: rows that grow by one pixel towards it.
    /// A surface that has several device pixels to a logical one may draw the diagonal smooth, within these rows.
    virtual void FillTriangle(const Rect& square, Corner corner, OleColor color)
    {
        const bool bTop = corner == Corner::TopLeft || corner == Corner::TopRight;
        const bool bLeft = corner == Corner::TopLeft || corner == Corner::BottomLeft;
        for (std::int32_t y = square.top; y < square.bottom; ++y) {
            const std::int32_t width = bTop ? square.bottom - y : y - square.top + 1;
            const std::int32_t left = bLeft ? square.left : square.right - width;
            DrawLine({left, y}, {left + width - 1, y}, color);
        }
    }
    /// Draws one line of text centred in the box in the control's font. The cell of the text is first filled with
    /// the surface's background colour, so that drawing another text over it leaves nothing of the first.
    virtual void DrawCenteredText(std::string_view text, const Rect& box, FontWeight weight, OleColor color) = 0;
    /// Draws one line of text from the left of the box, in its vertical middle and cut off with an ellipsis at its
    /// right.
    virtual void DrawLeftText(std::string_view text, const Rect& box, OleColor color) = 0;
    /// Draws the image of the list that has the key, with its top-left corner at the point. Throws VxError-like
    /// exceptions when the list has no such key.
    virtual void DrawListImage(const ImageList& list, std::string_view key, Point at, DrawStyle style) = 0;
    /// Draws a single image with its top-left corner at the point.
    virtual void DrawImage(const Image& image, Point at, DrawStyle style) = 0;
    /// Inverts a dotted rectangle; a second call with the same rectangle takes it away.
    virtual void DrawFocusRect(const Rect& rect) = 0;
};

} // namespace zqbchwcx
