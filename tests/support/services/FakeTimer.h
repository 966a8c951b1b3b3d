#pragma once

#include "platform/Timer.h"
#include "tests/support/services/CallLog.h"

#include <functional>
#include <memory>
#include <utility>

namespace zqbchwcx::testing {

struct FakeTimerState {
    std::int32_t interval = 0;
    std::int32_t elapsed = 0;
    bool enabled = false;
    std::function<void()> handler;
};

/// A timer that runs on the time of a `FakeClock`.
class FakeTimer : public Timer {
public:
    FakeTimer(CallLogPtr log, std::shared_ptr<FakeTimerState> state) : moLog(std::move(log)), moState(std::move(state))
    {
    }

    void Interval(std::int32_t lMilliseconds) override
    {
        moLog->Call("Timer.Interval");
        moState->interval = lMilliseconds;
    }
    bool Enabled() const override { return moState->enabled; }
    void Enabled(bool bEnabled) override
    {
        moLog->Call("Timer.Enabled");
        moState->enabled = bEnabled;
        moState->elapsed = 0;
    }
    void OnTimer(std::function<void()> handler) override
    {
        moLog->Call("Timer.OnTimer");
        moState->handler = std::move(handler);
    }

private:
    CallLogPtr moLog;
    std::shared_ptr<FakeTimerState> moState;
};

} // namespace zqbchwcx::testing
