#pragma once

#include "zqbchwcx/foundation/VxError.h"

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

/// Counts the calls that the library makes to its model and its host, and makes one of them fail, answer nothing, or do
/// something else first.
class FaultPoints {
public:
    /// What a test asks by itself, for as long as this lives, is no call of the library.
    class Pause {
    public:
        explicit Pause(FaultPoints& faults) : mFaults(faults) { ++mFaults.mlPaused; }
        ~Pause() { --mFaults.mlPaused; }
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        FaultPoints& mFaults;
    };

    /// Counts one call. Throws VxError when it is the armed one; later calls succeed again.
    void Hit(std::string_view call)
    {
        if (mlPaused > 0 || ++mlCount != mlArmed) return;
        msThrown = call;
        if (mAction) return mAction();
        throw VxError(InjectedNumber, "Injected into " + msThrown, "host", "injected.hlp", 7);
    }

    /// Starts to count from 0 with nothing armed.
    void Restart() { ThrowAt(0); }
    /// Starts to count from 0; the call with that number (from 1) fails. 0 arms none.
    void ThrowAt(std::int32_t lCall)
    {
        mlArmed = lCall;
        mlCount = 0;
        msThrown.clear();
        mAction = nullptr;
        mbNothing = false;
        mcolObjectCalls.clear();
    }
    /// The call with that number does this before it goes on.
    void RunAt(std::int32_t lCall, std::function<void()> action)
    {
        ThrowAt(lCall);
        mAction = std::move(action);
    }
    /// The call with that number, one of `ObjectCalls`, answers nothing.
    void NothingAt(std::int32_t lCall)
    {
        RunAt(lCall, [this] { mbNothing = true; });
    }
    /// Whether the call that was just counted, which answers an object, answers nothing; asked once.
    bool TakeNothing()
    {
        if (mlPaused > 0) return false;
        mcolObjectCalls.push_back(mlCount);
        return std::exchange(mbNothing, false);
    }
    std::int32_t Count() const { return mlCount; }
    /// The numbers of the calls that answered an object.
    const std::vector<std::int32_t>& ObjectCalls() const { return mcolObjectCalls; }
    /// The armed call; empty when it has not come.
    const std::string& Thrown() const { return msThrown; }

    static constexpr std::int32_t InjectedNumber = 4711;

private:
    std::int32_t mlPaused = 0;
    std::int32_t mlCount = 0;
    std::int32_t mlArmed = 0;
    std::string msThrown;
    std::function<void()> mAction;
    bool mbNothing = false;
    std::vector<std::int32_t> mcolObjectCalls;
};

} // namespace zqbchwcx::testing
