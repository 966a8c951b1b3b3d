#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/Button.h"

namespace zqbchwcx::testing {

/// A button whose user the test plays, through `User()`.
class RecordingButton : public Button, public Logged {
public:
    RecordingButton(CallLogPtr log, const Rect& rect, ButtonArrow eArrow)
        : Logged(std::move(log)), bounds(rect), arrow(eArrow)
    {
    }

    void Events(ButtonEvents* receiver) override { mpEvents = receiver; }
    bool Pressed() const override { return mbPressed; }
    void Pressed(bool bPressed) override { Call("Button.Pressed"), mbPressed = bPressed; }
    void ArrowColor(OleColor color) override { Call("Button.ArrowColor"), arrowColor = color; }
    void Move(const Rect& rect) override { Call("Button.Move"), bounds = rect; }
    bool Visible() const override { return mbVisible; }
    void Visible(bool bVisible) override { Call("Button.Visible"), mbVisible = bVisible; }

    ButtonEvents& User() const { return *mpEvents; }

    Rect bounds;
    ButtonArrow arrow;
    OleColor arrowColor = 0;

private:
    ButtonEvents* mpEvents = nullptr;
    bool mbPressed = false;
    bool mbVisible = true;
};

} // namespace zqbchwcx::testing
