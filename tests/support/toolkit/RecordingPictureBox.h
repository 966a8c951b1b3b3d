#pragma once

#include "tests/support/services/CallLog.h"
#include "tests/support/toolkit/Raster.h"
#include "tests/support/toolkit/RecordingImageList.h"
#include "zqbchwcx/platform/PictureBox.h"

#include <functional>

namespace zqbchwcx::testing {

/// A picture box that keeps every drawing call as a line, and the picture that they make. The test plays the user.
class RecordingPictureBox : public PictureBox, public Logged {
public:
    RecordingPictureBox(CallLogPtr log, const Rect& rect) : Logged(std::move(log)), mRect(rect)
    {
        raster.Resize(ScaleSize(), mBackColor);
    }

    void Events(PictureBoxEvents* receiver) override { mpEvents = receiver; }
    std::int32_t Left() const override { return mRect.left; }
    std::int32_t Top() const override { return mRect.top; }
    Size ScaleSize() const override { return {mRect.width(), mRect.height()}; }
    void Move(const Rect& rect) override
    {
        Call("PictureBox.Move");
        mRect = rect;
        if (ScaleSize() != raster.RasterSize()) raster.Resize(ScaleSize(), mBackColor);
    }
    bool Visible() const override { return mbVisible; }
    void Visible(bool bVisible) override { Call("PictureBox.Visible"), mbVisible = bVisible; }
    void BackColor(OleColor color) override
    {
        Line("BackColor " + Named(color));
        mBackColor = color;
        raster.Fill(MakeRect(0, 0, mRect.width(), mRect.height()), color);
    }
    void Refresh() override { Call("PictureBox.Refresh"); }
    bool HasFocus() const override { return mbFocus; }
    void SetFocus() override { Focus(true); }
    void OLEDrag() override
    {
        Line("OLEDrag");
        if (onDrag) onDrag();
    }
    std::intptr_t hWnd() const override { return 4; }

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

    PictureBoxEvents& User() const { return *mpEvents; }
    void Focus(bool bFocus)
    {
        mbFocus = bFocus;
        if (bFocus) mpEvents->GotFocus();
        else mpEvents->LostFocus();
    }
    /// The drawing calls since the last `TakeLines`, without those that only show the picture.
    std::vector<std::string> TakeLines() { return std::exchange(lines, {}); }
    const Rect& Bounds() const { return mRect; }

    std::vector<std::string> lines;
    Raster raster;
    std::function<void()> onDrag; ///< what happens during `OLEDrag`

private:
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
        Call("PictureBox " + line);
        lines.push_back(std::move(line));
    }

    Rect mRect;
    PictureBoxEvents* mpEvents = nullptr;
    bool mbVisible = true;
    bool mbFocus = false;
    OleColor mBackColor = vxColorButtonFace;
};

} // namespace zqbchwcx::testing
