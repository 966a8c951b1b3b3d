#pragma once

#include "platform/PictureBox.h"
#include "tests/support/services/CallLog.h"
#include "tests/support/toolkit/Raster.h"

#include <functional>

namespace zqbchwcx::testing {

/// A picture box that keeps every drawing call as a line, and the picture that they make. The test plays the user.
class RecordingPictureBox : public PictureBox, public Logged {
public:
    RecordingPictureBox(CallLogPtr log, const Rect& rect);

    void Events(PictureBoxEvents* receiver) override { mpEvents = receiver; }
    std::int32_t Left() const override { return mRect.left; }
    std::int32_t Top() const override { return mRect.top; }
    Size ScaleSize() const override { return {mRect.width(), mRect.height()}; }
    void Move(const Rect& rect) override;
    bool Visible() const override { return mbVisible; }
    void Visible(bool bVisible) override;
    void BackColor(OleColor color) override;
    void Refresh() override;
    bool HasFocus() const override { return mbFocus; }
    void SetFocus() override { Focus(true); }
    void OLEDrag() override;
    std::intptr_t hWnd() const override { return 4; }

    void FillBox(const Rect& rect, OleColor color) override;
    void DrawBox(const Rect& rect, OleColor color) override;
    void DrawLine(Point from, Point to, OleColor color) override;
    void DrawCenteredText(std::string_view text, const Rect& box, FontWeight weight, OleColor color) override;
    void DrawListImage(const ImageList& list, std::string_view key, Point at, DrawStyle style) override;
    void DrawImage(const Image& image, Point at, DrawStyle style) override;
    void DrawFocusRect(const Rect& rect) override;

    PictureBoxEvents& User() const { return *mpEvents; }
    void Focus(bool bFocus);
    /// The drawing calls since the last `TakeLines`, without those that only show the picture.
    std::vector<std::string> TakeLines();
    const Rect& Bounds() const { return mRect; }

    std::vector<std::string> lines;
    Raster raster;
    std::int32_t refreshCount = 0;
    std::function<void()> onDrag; ///< what happens during `OLEDrag`

private:
    void Line(std::string line);

    Rect mRect;
    PictureBoxEvents* mpEvents = nullptr;
    bool mbVisible = true;
    bool mbFocus = false;
    OleColor mBackColor = vxColorButtonFace;
};

} // namespace zqbchwcx::testing
