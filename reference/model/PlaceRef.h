#pragma once

#include <compare>
#include <cstdint>

namespace zqbchwcx::reference {

/// Names a place: rack from 0, place from 1; place 0 means the rack as a whole, rack -1 the station.
struct PlaceRef {
    std::int32_t rack = -1;
    std::int32_t place = 0;

    auto operator<=>(const PlaceRef&) const = default;
};

} // namespace zqbchwcx::reference
