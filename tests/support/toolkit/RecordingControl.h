#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/UserControl.h"

namespace zqbchwcx::testing {

/// A site for a view, or a control inside one. The test plays the user.
class RecordingControl : public ChildControl, public Logged {
public:
    explicit RecordingControl(CallLogPtr log, const Rect& rect = MakeRect(0, 0, 260, 400))
        : Logged(std::move(log)), bounds(rect)
    {
    }

    void Events(UserControlEvents* receiver) override { mpEvents = receiver; }
    std::intptr_t hWnd() const override { return 3; }
    std::int32_t Width() const override { return bounds.width() * vxTwipsPerPixel; }
    std::int32_t Height() const override { return bounds.height() * vxTwipsPerPixel; }
    void Size(std::int32_t lWidth, std::int32_t lHeight) override
    {
        Call("UserControl.Size");
        Resize(lWidth, lHeight);
    }
    void Font(std::string_view family, double points) override
    {
        Call("UserControl.Font");
        font = std::string(family) + " " + std::to_string(points).substr(0, 4);
    }
    void Move(const Rect& rect) override { Call("ChildControl.Move"), bounds = rect; }

    bool IsConnected() const { return mpEvents != nullptr; }
    UserControlEvents& User() const { return *mpEvents; }
    /// Twips.
    void Resize(std::int32_t lWidth, std::int32_t lHeight)
    {
        bounds.right = bounds.left + lWidth / vxTwipsPerPixel;
        bounds.bottom = bounds.top + lHeight / vxTwipsPerPixel;
        if (mpEvents != nullptr) mpEvents->Resize();
    }

    Rect bounds;
    std::string font;

private:
    UserControlEvents* mpEvents = nullptr;
};

} // namespace zqbchwcx::testing
