#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/ScrollBar.h"

namespace zqbchwcx::testing {

/// A scroll bar whose user the test plays.
class RecordingScrollBar : public ScrollBar, public Logged {
public:
    RecordingScrollBar(CallLogPtr log, const Rect& rect) : Logged(std::move(log)), bounds(rect) {}

    void Events(ScrollBarEvents* receiver) override { mpEvents = receiver; }
    void Range(std::int32_t lMaximum, std::int32_t l) override
    {
        Call("ScrollBar.Range"), maximum = lMaximum, page = l;
    }
    std::int32_t Value() const override { return mlValue; }
    void Value(std::int32_t lValue) override { Call("ScrollBar.Value"), mlValue = lValue; }
    void Move(const Rect& rect) override { Call("ScrollBar.Move"), bounds = rect; }
    bool Visible() const override { return mbVisible; }
    void Visible(bool bVisible) override { Call("ScrollBar.Visible"), mbVisible = bVisible; }

    /// The user moves the thumb there and lets go of it.
    void DragTo(std::int32_t lValue)
    {
        mlValue = lValue;
        mpEvents->Scroll();
        mpEvents->Change();
    }

    Rect bounds;
    std::int32_t maximum = 0;
    std::int32_t page = 1;

private:
    ScrollBarEvents* mpEvents = nullptr;
    std::int32_t mlValue = 0;
    bool mbVisible = true;
};

} // namespace zqbchwcx::testing
