#pragma once

#include "tests/support/toolkit/RecordingSurface.h"
#include "zqbchwcx/platform/PictureBox.h"

#include <functional>

namespace zqbchwcx::testing {

/// A picture box whose user the test plays.
class RecordingPictureBox : public RecordingSurface<PictureBox> {
public:
    RecordingPictureBox(CallLogPtr log, const Rect& rect)
        : RecordingSurface(std::move(log), "PictureBox", {rect.width(), rect.height()}), mRect(rect)
    {
    }

    void Events(PictureBoxEvents* receiver) override { mpEvents = receiver; }
    std::int32_t Left() const override { return mRect.left; }
    std::int32_t Top() const override { return mRect.top; }
    Size ScaleSize() const override { return {mRect.width(), mRect.height()}; }
    void Move(const Rect& rect) override
    {
        Call("PictureBox.Move");
        mRect = rect;
        ResizePicture(ScaleSize());
    }
    bool Visible() const override { return mbVisible; }
    void Visible(bool bVisible) override { Call("PictureBox.Visible"), mbVisible = bVisible; }
    void BackColor(OleColor color) override { Erase(color); }
    void Refresh() override { Call("PictureBox.Refresh"); }
    bool HasFocus() const override { return mbFocus; }
    void SetFocus() override { Focus(true); }
    void OLEDrag() override
    {
        Line("OLEDrag");
        if (onDrag) onDrag();
    }
    std::intptr_t hWnd() const override { return 4; }

    PictureBoxEvents& User() const { return *mpEvents; }
    void Focus(bool bFocus)
    {
        mbFocus = bFocus;
        if (bFocus) mpEvents->GotFocus();
        else mpEvents->LostFocus();
    }
    const Rect& Bounds() const { return mRect; }

    std::function<void()> onDrag; ///< what happens during `OLEDrag`

private:
    Rect mRect;
    PictureBoxEvents* mpEvents = nullptr;
    bool mbVisible = true;
    bool mbFocus = false;
};

} // namespace zqbchwcx::testing
