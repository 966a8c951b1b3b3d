#pragma once

#include "zqbchwcx/reference/json/NamedValue.h"

#include <array>
#include <cstdint>

namespace zqbchwcx::reference {

/// What files call the values of a station.
inline constexpr std::array StationKindNames{
    NamedValue<std::int32_t>{"central", 0},
    NamedValue<std::int32_t>{"distributedA", 1},
    NamedValue<std::int32_t>{"distributedB", 2},
};

inline constexpr std::array UsabilityNames{
    NamedValue<std::int32_t>{"active", 1},
    NamedValue<std::int32_t>{"inactive", 0},
    NamedValue<std::int32_t>{"unusable", -1},
};

} // namespace zqbchwcx::reference
