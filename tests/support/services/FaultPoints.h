#pragma once

#include "zqbchwcx/foundation/VxError.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

namespace zqbchwcx::testing {

/// Counts the calls that the library makes to its model and its host, and makes one of them fail, or do something else
/// first.
class FaultPoints {
public:
    /// Counts one call. Throws VxError when it is the armed one; later calls succeed again.
    void Hit(std::string_view call)
    {
        if (++mlCount != mlThrowAt) return;
        msThrown = call;
        if (mAction) return mAction();
        throw VxError(InjectedNumber, "Injected into " + msThrown, "host", "injected.hlp", 7);
    }

    /// Starts to count from 0 with nothing armed.
    void Restart() { ThrowAt(0); }
    /// Starts to count from 0; the call with that number (from 1) fails. 0 arms none.
    void ThrowAt(std::int32_t lCall)
    {
        mlThrowAt = lCall;
        mlCount = 0;
        msThrown.clear();
        mAction = nullptr;
        mbNothing = false;
    }
    /// The call with that number does this before it goes on.
    void RunAt(std::int32_t lCall, std::function<void()> action)
    {
        ThrowAt(lCall);
        mAction = std::move(action);
    }
    /// The call with that number answers nothing, if it answers an object.
    void NothingAt(std::int32_t lCall)
    {
        RunAt(lCall, [this] { mbNothing = true; });
    }
    /// Whether the call that was just counted answers nothing; asked once.
    bool TakeNothing() { return std::exchange(mbNothing, false); }
    std::int32_t Count() const { return mlCount; }
    /// The armed call; empty when it has not come.
    const std::string& Thrown() const { return msThrown; }

    static constexpr std::int32_t InjectedNumber = 4711;

private:
    std::int32_t mlCount = 0;
    std::int32_t mlThrowAt = 0;
    std::string msThrown;
    std::function<void()> mAction;
    bool mbNothing = false;
};

} // namespace zqbchwcx::testing
