#pragma once

#include "platform/Timer.h"
#include "tests/support/services/CallLog.h"

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
        auto state = std::make_shared<State>();
        mcolTimers.push_back(state);
        return std::make_unique<FakeTimer>(moLog, std::move(state));
    }

    /// Lets the time pass millisecond by millisecond and calls the timers that are due, in order of creation.
    void Advance(std::int32_t lMilliseconds)
    {
        for (std::int32_t i = 0; i < lMilliseconds; ++i) Tick();
    }

    std::ptrdiff_t EnabledCount() const
    {
        return std::count_if(mcolTimers.begin(), mcolTimers.end(), [](const auto& weak) {
            const auto timer = weak.lock();
            return timer && timer->enabled;
        });
    }

private:
    struct State {
        std::int32_t interval = 0;
        std::int32_t elapsed = 0;
        bool enabled = false;
        std::function<void()> handler;
    };

    class FakeTimer : public Timer, public Logged {
    public:
        FakeTimer(CallLogPtr log, std::shared_ptr<State> state) : Logged(std::move(log)), moState(std::move(state)) {}

        void Interval(std::int32_t lMilliseconds) override
        {
            Call("Timer.Interval");
            moState->interval = lMilliseconds;
        }
        bool Enabled() const override { return moState->enabled; }
        void Enabled(bool bEnabled) override
        {
            Call("Timer.Enabled");
            moState->enabled = bEnabled;
            moState->elapsed = 0;
        }
        void OnTimer(std::function<void()> handler) override
        {
            Call("Timer.OnTimer");
            moState->handler = std::move(handler);
        }

    private:
        std::shared_ptr<State> moState;
    };

    void Tick()
    {
        const auto timers = mcolTimers;
        for (const auto& weak : timers) {
            const auto timer = weak.lock();
            if (!timer || !timer->enabled || ++timer->elapsed < timer->interval) continue;
            timer->elapsed = 0;
            if (const auto handler = timer->handler) handler();
        }
    }

    std::vector<std::weak_ptr<State>> mcolTimers;
};

} // namespace zqbchwcx::testing
