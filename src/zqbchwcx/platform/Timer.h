#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace zqbchwcx {

/// A repeating timer on the user-interface thread.
class Timer {
public:
    virtual ~Timer() = default;

    virtual void Interval(std::int32_t lMilliseconds) = 0;
    virtual bool Enabled() const = 0;
    /// Enabling starts a whole interval anew.
    virtual void Enabled(bool bEnabled) = 0;
    /// What to call when an interval is over.
    virtual void OnTimer(std::function<void()> handler) = 0;
};
using TimerPtr = std::unique_ptr<Timer>;

} // namespace zqbchwcx
