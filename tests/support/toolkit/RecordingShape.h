#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/Shape.h"

namespace zqbchwcx::testing {

class RecordingShape : public Frame, public Logged {
public:
    RecordingShape(CallLogPtr log, const Rect& rect) : Logged(std::move(log)), mBounds(rect) {}

    Rect Bounds() const override { return mBounds; }
    void Move(const Rect& rect) override { Call("Shape.Move"), mBounds = rect; }
    bool Visible() const override { return mbVisible; }
    void Visible(bool bVisible) override
    {
        Call("Shape.Visible");
        mbVisible = bVisible;
        ++visibleWrites;
    }

    void BackColor(OleColor color) override { Call("Frame.BackColor"), backColor = color; }

    std::int32_t visibleWrites = 0;
    OleColor backColor = 0;

private:
    Rect mBounds;
    bool mbVisible = true;
};

} // namespace zqbchwcx::testing
