#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <cstdint>
#include <vector>

namespace zqbchwcx::reference {

/// Places that a module fills; 1 for a type that the catalogue does not know.
std::int32_t SpanOf(const ModuleData& module, const Catalogue& catalogue);

/// Which module fills which place of a rack. A module that begins inside another one cuts it short.
class Occupancy {
public:
    Occupancy() = default;
    Occupancy(const RackData& rack, const Catalogue& catalogue);

    std::int32_t PlaceCount() const { return static_cast<std::int32_t>(mcolFirstPlaces.size()); }
    /// The first place of the module that fills the place; 0 when the place is empty or there is no such place.
    std::int32_t FirstPlace(std::int32_t place) const
    {
        return place >= 1 && place <= PlaceCount() ? mcolFirstPlaces[static_cast<std::size_t>(place - 1)] : 0;
    }
    bool IsFree(std::int32_t place) const { return FirstPlace(place) == 0; }

    void Fill(std::int32_t firstPlace, std::int32_t span) { Mark(firstPlace, span, firstPlace); }
    void Free(std::int32_t firstPlace);

private:
    void Mark(std::int32_t firstPlace, std::int32_t span, std::int32_t value);

    std::vector<std::int32_t> mcolFirstPlaces;
};

} // namespace zqbchwcx::reference
