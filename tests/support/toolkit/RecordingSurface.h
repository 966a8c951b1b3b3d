#pragma once

#include "tests/support/services/CallLog.h"
#include "tests/support/toolkit/Raster.h"
#include "tests/support/toolkit/RecordingImageList.h"
#include "zqbchwcx/platform/Surface.h"

namespace zqbchwcx::testing {

/// A drawing surface that keeps every drawing call as a line, and the picture that they make. `Interface` is the kind
/// of window that it belongs to, its name the first word of the calls.
template <class Interface>
class RecordingSurface : public Interface, public Logged {
public:
    RecordingSurface(CallLogPtr log, std::string name, Size size) : Logged(std::move(log)), msName(std::move(name))
    {
        raster.Resize(size, mBackColor);
    }

    void FillBox(const Rect& rect, OleColor color) override
    {
        Line("Fill " + At(rect) + " " + Named(color));
        raster.Fill(rect, color);
    }
    void DrawLine(Point from, Point to, OleColor color) override
    {
        Line("Line " + At(from.x, from.y) + " " + At(to.x, to.y) + " " + Named(color));
        raster.Fill({from.x, from.y, to.x + 1, to.y + 1}, color);
    }
    void DrawCenteredText(std::string_view text, const Rect& box, FontWeight weight, OleColor color) override
    {
        Line("Text " + std::string(text) + " " + At(box) + (weight == FontWeight::Bold ? " bold " : " ") +
             Named(color));
        raster.Text(text, box, weight, color, mBackColor);
    }
    void DrawLeftText(std::string_view text, const Rect& box, OleColor color) override
    {
        Line("LeftText " + std::string(text) + " " + At(box) + " " + Named(color));
        raster.Text(text, box, FontWeight::Regular, color, mBackColor);
    }
    void DrawListImage(const ImageList& list, std::string_view key, Point at, DrawStyle style) override
    {
        const FakeImage image = dynamic_cast<const RecordingImageList&>(list).At(key);
        Line(Styled(key, at, style));
        raster.Draw(image, at, style);
    }
    void DrawImage(const Image& image, Point at, DrawStyle style) override
    {
        const auto& fake = dynamic_cast<const FakeImage&>(image);
        Line(Styled(fake.key, at, style));
        raster.Draw(fake, at, style);
    }
    void DrawFocusRect(const Rect& rect) override
    {
        Line("Invert " + At(rect));
        raster.InvertOutline(rect);
    }

    /// The drawing calls since the last `TakeLines`, without those that only show the picture.
    std::vector<std::string> TakeLines() { return std::exchange(lines, {}); }

    std::vector<std::string> lines;
    Raster raster;

protected:
    void Erase(OleColor color)
    {
        Line("BackColor " + Named(color));
        mBackColor = color;
        raster.Fill(MakeRect(0, 0, raster.RasterSize().width, raster.RasterSize().height), color);
    }
    /// New parts of the picture have its background colour.
    void ResizePicture(Size size)
    {
        if (size != raster.RasterSize()) raster.Resize(size, mBackColor);
    }
    static std::string At(std::int32_t x, std::int32_t y) { return std::to_string(x) + "," + std::to_string(y); }
    static std::string At(const Rect& rect)
    {
        return At(rect.left, rect.top) + " " + std::to_string(rect.width()) + "x" + std::to_string(rect.height());
    }
    static std::string Named(OleColor color)
    {
        if (color == vxColorWindowBackground) return "window";
        if (color == vxColorButtonText) return "text";
        return color == vxColorGrayText ? "gray" : std::to_string(color);
    }
    static std::string Styled(std::string_view key, Point at, DrawStyle style)
    {
        return "Image " + std::string(key) + " " + At(at.x, at.y) + " style " + std::to_string(static_cast<int>(style));
    }
    void Line(std::string line)
    {
        Call(msName + " " + line);
        lines.push_back(std::move(line));
    }

private:
    std::string msName;
    OleColor mBackColor = vxColorButtonFace;
};

} // namespace zqbchwcx::testing
