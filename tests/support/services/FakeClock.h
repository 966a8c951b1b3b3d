#pragma once

#include "tests/support/services/FakeTimer.h"

#include <memory>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

/// Makes timers and lets their time pass.
class FakeClock {
public:
    explicit FakeClock(CallLogPtr log) : moLog(std::move(log)) {}

    TimerPtr CreateTimer()
    {
        moLog->Call("Toolkit.CreateTimer");
        auto state = std::make_shared<FakeTimerState>();
        mcolTimers.push_back(state);
        return std::make_unique<FakeTimer>(moLog, std::move(state));
    }

    /// Lets the time pass millisecond by millisecond and calls the timers that are due, in order of creation.
    void Advance(std::int32_t lMilliseconds)
    {
        for (std::int32_t i = 0; i < lMilliseconds; ++i) Tick();
    }

    std::size_t EnabledCount() const
    {
        std::size_t count = 0;
        for (const auto& weak : mcolTimers)
            if (const auto timer = weak.lock(); timer && timer->enabled) ++count;
        return count;
    }

private:
    void Tick()
    {
        const auto timers = mcolTimers;
        for (const auto& weak : timers) {
            const auto timer = weak.lock();
            if (!timer || !timer->enabled || ++timer->elapsed < timer->interval) continue;
            timer->elapsed = 0;
            const auto handler = timer->handler;
            if (handler) handler();
        }
    }

    CallLogPtr moLog;
    std::vector<std::weak_ptr<FakeTimerState>> mcolTimers;
};

} // namespace zqbchwcx::testing
