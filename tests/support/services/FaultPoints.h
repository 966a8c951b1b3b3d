#pragma once

#include "foundation/VxError.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zqbchwcx::testing {

/// Counts the calls that the library makes to its model and its host, and makes one of them fail.
class FaultPoints {
public:
    /// Counts one call. Throws VxError when it is the armed one; later calls succeed again.
    void Hit(std::string_view call)
    {
        if (++mlCount != mlThrowAt) return;
        msThrown = call;
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
    }
    std::int32_t Count() const { return mlCount; }
    /// The call that failed; empty when none has.
    const std::string& Thrown() const { return msThrown; }

    static constexpr std::int32_t InjectedNumber = 4711;

private:
    std::int32_t mlCount = 0;
    std::int32_t mlThrowAt = 0;
    std::string msThrown;
};

} // namespace zqbchwcx::testing
