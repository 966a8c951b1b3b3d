#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <vector>

namespace zqbchwcx {

/// The places of a distributed station, which has one rack, that its views show: those that are usable at all. The
/// others take no room, and the following places close up. Places and indices count from 1; 0 is none.
class ShownPlaces {
public:
    /// Of rack 0 of the station; none of no station. Throws what the model throws.
    static ShownPlaces Of(const VxHWStationPtr& oStation);

    std::int32_t Count() const { return static_cast<std::int32_t>(mcolNumbers.size()); }
    /// The number of the place with that index among those shown.
    std::int32_t NumberAt(std::int32_t lIndex) const;
    std::int32_t IndexOf(std::int32_t lPlace) const;
    /// The index of the place or, if it is not shown, of the next one that is; 0 when none follows.
    std::int32_t IndexFrom(std::int32_t lPlace) const;
    /// The first place from that number on that is shown; where none is, the number behind the rack's last place.
    std::int32_t NumberFrom(std::int32_t lPlace) const;
    std::int32_t LastNumber() const { return NumberAt(Count()); }
    /// The places of the rack, hidden ones included.
    std::int32_t PlaceCount() const { return static_cast<std::int32_t>(mcolIndexFrom.size()); }

    bool operator==(const ShownPlaces&) const = default;

private:
    std::vector<std::int32_t> mcolNumbers;   ///< by index
    std::vector<std::int32_t> mcolIndexFrom; ///< by place
};

} // namespace zqbchwcx
