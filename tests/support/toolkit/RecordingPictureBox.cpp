#include "tests/support/toolkit/RecordingPictureBox.h"

#include "tests/support/toolkit/RecordingImageList.h"

namespace zqbchwcx::testing {
namespace {

std::string At(std::int32_t x, std::int32_t y)
{
    return std::to_string(x) + "," + std::to_string(y);
}

std::string At(const Rect& rect)
{
    return At(rect.left, rect.top) + " " + std::to_string(rect.width()) + "x" + std::to_string(rect.height());
}

std::string Named(OleColor color)
{
    if (color == vxColorWindowBackground) return "window";
    if (color == vxColorButtonText) return "text";
    if (color == vxColorGrayText) return "gray";
    return std::to_string(color);
}

std::string Styled(std::string_view key, Point at, DrawStyle style)
{
    return "Image " + std::string(key) + " " + At(at.x, at.y) + " style " + std::to_string(static_cast<int>(style));
}

} // namespace

RecordingPictureBox::RecordingPictureBox(CallLogPtr log, const Rect& rect) : Logged(std::move(log)), mRect(rect)
{
    raster.Resize(ScaleSize(), mBackColor);
}

void RecordingPictureBox::Move(const Rect& rect)
{
    Call("PictureBox.Move");
    mRect = rect;
    if (ScaleSize() != raster.RasterSize()) raster.Resize(ScaleSize(), mBackColor);
}

void RecordingPictureBox::Visible(bool bVisible)
{
    Call("PictureBox.Visible");
    mbVisible = bVisible;
}

void RecordingPictureBox::BackColor(OleColor color)
{
    Line("BackColor " + Named(color));
    mBackColor = color;
    raster.Fill(MakeRect(0, 0, mRect.width(), mRect.height()), color);
}

void RecordingPictureBox::Refresh()
{
    Call("PictureBox.Refresh");
    ++refreshCount;
}

void RecordingPictureBox::OLEDrag()
{
    Line("OLEDrag");
    if (onDrag) onDrag();
}

void RecordingPictureBox::FillBox(const Rect& rect, OleColor color)
{
    Line("Fill " + At(rect) + " " + Named(color));
    raster.Fill(rect, color);
}

void RecordingPictureBox::DrawBox(const Rect& rect, OleColor color)
{
    Line("Outline " + At(rect) + " " + Named(color));
    raster.Fill({rect.left, rect.top, rect.right, rect.top + 1}, color);
    raster.Fill({rect.left, rect.bottom - 1, rect.right, rect.bottom}, color);
    raster.Fill({rect.left, rect.top, rect.left + 1, rect.bottom}, color);
    raster.Fill({rect.right - 1, rect.top, rect.right, rect.bottom}, color);
}

void RecordingPictureBox::DrawLine(Point from, Point to, OleColor color)
{
    Line("Line " + At(from.x, from.y) + " " + At(to.x, to.y) + " " + Named(color));
    raster.Fill({from.x, from.y, to.x + 1, to.y + 1}, color);
}

void RecordingPictureBox::DrawCenteredText(std::string_view text, const Rect& box, FontWeight weight, OleColor color)
{
    Line("Text " + std::string(text) + " " + At(box) + (weight == FontWeight::Bold ? " bold " : " ") + Named(color));
    raster.Text(text, box, weight, color, mBackColor);
}

void RecordingPictureBox::DrawListImage(const ImageList& list, std::string_view key, Point at, DrawStyle style)
{
    const auto& image = dynamic_cast<const RecordingImageList&>(list).At(key);
    Line(Styled(key, at, style));
    raster.Draw(image, at, style);
}

void RecordingPictureBox::DrawImage(const Image& image, Point at, DrawStyle style)
{
    const auto& fake = dynamic_cast<const FakeImage&>(image);
    Line(Styled(fake.Key(), at, style));
    raster.Draw(fake, at, style);
}

void RecordingPictureBox::DrawFocusRect(const Rect& rect)
{
    Line("Invert " + At(rect));
    raster.InvertOutline(rect);
}

void RecordingPictureBox::Focus(bool bFocus)
{
    mbFocus = bFocus;
    if (bFocus) mpEvents->GotFocus();
    else mpEvents->LostFocus();
}

std::vector<std::string> RecordingPictureBox::TakeLines()
{
    return std::exchange(lines, {});
}

void RecordingPictureBox::Line(std::string line)
{
    Call("PictureBox " + line);
    lines.push_back(std::move(line));
}

} // namespace zqbchwcx::testing
