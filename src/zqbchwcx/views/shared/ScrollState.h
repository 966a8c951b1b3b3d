#pragma once

#include "zqbchwcx/foundation/Event.h"

#include <algorithm>
#include <cstdint>

namespace zqbchwcx {

/// The first row that a scrolled view shows, counted from 0.
class ScrollState {
public:
    /// Raised after the value has changed, or the maximum.
    Event<> Change;

    std::int32_t Minimum() const { return 0; }
    std::int32_t Maximum() const { return mlMaximum; }
    std::int32_t Value() const { return mlValue; }
    /// A value beyond the limits becomes the nearest one.
    void Value(std::int32_t lValue) { Set(lValue, mlMaximum); }
    void Maximum(std::int32_t lMaximum) { Set(mlValue, std::max(lMaximum, 0)); }

private:
    void Set(std::int32_t lValue, std::int32_t lMaximum)
    {
        lValue = std::clamp(lValue, 0, lMaximum);
        if (lValue == mlValue && lMaximum == mlMaximum) return;
        mlValue = lValue;
        mlMaximum = lMaximum;
        Change.Raise();
    }

    std::int32_t mlMaximum = 0;
    std::int32_t mlValue = 0;
};

} // namespace zqbchwcx
