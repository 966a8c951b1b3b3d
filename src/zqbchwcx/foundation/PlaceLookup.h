#pragma once

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>

namespace zqbchwcx {

/// The rack with that number. Throws VxError when the station is nothing or has no such rack.
VxHWRackPtr G_RackByNumber(const VxHWStationPtr& oStation, std::int32_t lRack);

/// The place with that number in that rack. Throws VxError when there is none.
VxHWRackPlacePtr G_PlaceByNumber(const VxHWStationPtr& oStation, std::int32_t lRack, std::int32_t lPlace);

/// The number of the place that a place or gap position stands for: a gap stands for the place to its left, the gap
/// before the first place for place 1.
constexpr std::int32_t G_PlaceNumberAt(const PositionInfo& info)
{
    return info.eType == vxPositionGap && info.lNumber == 0 ? 1 : info.lNumber;
}

/// Whether the station has the rack, place or gap. Views may name others, for its racks can be fewer or shorter than
/// the picture shows; those take no part in anything.
bool G_Exists(const VxHWStationPtr& oStation, const PositionInfo& info);

/// Whether it exists in a rack that is present.
bool G_IsPresent(const VxHWStationPtr& oStation, const PositionInfo& info);

} // namespace zqbchwcx
