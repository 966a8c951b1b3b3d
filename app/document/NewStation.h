#pragma once

#include "zqbchwcx/reference/model/StationData.h"

#include <cstdint>
#include <string>

namespace quillon_ed {

struct StationSize {
    std::int32_t racks = 1;
    std::int32_t places = 1; ///< per rack
};

inline constexpr std::int32_t SmallestPlaceCount = 4;

/// The largest station of the kind that its picture can show well.
StationSize LargestNewStation(std::int32_t stationKind);

/// A station whose places are all active and empty.
zqbchwcx::reference::StationData MakeNewStation(std::string name, std::int32_t stationKind, StationSize size);

} // namespace quillon_ed
