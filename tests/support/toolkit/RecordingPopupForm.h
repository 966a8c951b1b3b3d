#pragma once

#include "tests/support/toolkit/RecordingSurface.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/platform/PopupForm.h"

namespace zqbchwcx::testing {

/// A popup form on a screen of 1920 × 1080 pixels, whose user the test plays.
class RecordingPopupForm : public RecordingSurface<PopupForm> {
public:
    explicit RecordingPopupForm(CallLogPtr log) : RecordingSurface(std::move(log), "PopupForm", {}) {}

    void Events(PopupFormEvents* receiver) override { mpEvents = receiver; }
    void Show(const Rect& onScreen) override
    {
        Call("PopupForm.Show");
        rect = onScreen;
        ResizePicture(ScaleSize());
        Erase(vxColorWindowBackground);
        mbVisible = true;
    }
    void Hide() override { Call("PopupForm.Hide"), mbVisible = false; }
    void Tell(std::string_view text) override { Call("PopupForm.Tell"), told = text; }
    bool Visible() const override { return mbVisible; }
    Size ScaleSize() const override { return {rect.width(), rect.height()}; }
    std::int32_t TextHeight() const override { return Answer("PopupForm.TextHeight", 13); }
    Rect WorkArea(Point onScreen) const override
    {
        askedAt = onScreen;
        return Answer("PopupForm.WorkArea", workArea);
    }
    std::intptr_t hWnd() const override { return 6; }

    bool IsConnected() const { return mpEvents != nullptr; }
    void DoubleClick(Point at)
    {
        mpEvents->MouseDown(vxButtonLeft, 0, at);
        mpEvents->DblClick();
    }
    /// By a rule of the windowing system.
    void Close()
    {
        mbVisible = false;
        mpEvents->Closed();
    }

    std::string told; ///< last, for screen readers
    Rect rect;
    Rect workArea = MakeRect(0, 0, 1920, 1080);
    mutable Point askedAt; ///< the point whose screen was asked for

private:
    PopupFormEvents* mpEvents = nullptr;
    bool mbVisible = false;
};

} // namespace zqbchwcx::testing
