#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/Timer.h"

#include <algorithm>
#include <functional>

namespace zqbchwcx::testing {

/// Makes timers and lets their time pass.
class FakeClock : public Logged {
public:
    using Logged::Logged;

    TimerPtr CreateTimer()
    {
        Call("Toolkit.CreateTimer");
        mcolTimers.push_back(std::make_shared<State>());
        return std::make_unique<FakeTimer>(moLog, mcolTimers.back());
    }
    /// Lets the time pass millisecond by millisecond and calls the timers that are due.
    void Advance(std::int32_t lMilliseconds)
    {
        for (; lMilliseconds > 0; --lMilliseconds)
            for (const auto& timer : std::vector(mcolTimers))
                if (timer->enabled && timer->handler && ++timer->elapsed % timer->interval == 0) {
                    const auto handler = timer->handler; // it may end its own timer
                    handler();
                }
    }
    bool IsRunning() const
    {
        return std::any_of(mcolTimers.begin(), mcolTimers.end(), [](const auto& timer) { return timer->enabled; });
    }

private:
    struct State {
        std::int32_t interval = 1;
        std::int32_t elapsed = 0;
        bool enabled = false;
        std::function<void()> handler;
    };

    class FakeTimer : public Timer, public Logged {
    public:
        FakeTimer(CallLogPtr log, std::shared_ptr<State> state) : Logged(std::move(log)), moState(std::move(state)) {}
        ~FakeTimer() override { *moState = {}; }
        FakeTimer(const FakeTimer&) = delete;
        FakeTimer& operator=(const FakeTimer&) = delete;

        void Interval(std::int32_t l) override { Call("Timer.Interval"), moState->interval = l; }
        bool Enabled() const override { return moState->enabled; }
        void Enabled(bool b) override { Call("Timer.Enabled"), moState->enabled = b, moState->elapsed = 0; }
        void OnTimer(std::function<void()> f) override { Call("Timer.OnTimer"), moState->handler = std::move(f); }

    private:
        std::shared_ptr<State> moState;
    };

    std::vector<std::shared_ptr<State>> mcolTimers;
};

} // namespace zqbchwcx::testing
