#pragma once

#include "zqbchwcx/reference/compare/CompareModules.h"
#include "zqbchwcx/reference/model/PlaceRef.h"

#include <cstdint>
#include <vector>

namespace zqbchwcx::reference {

/// What stands in one place or, for modules that span several of them, in a run of places with the same result.
struct PlaceDifference {
    PlaceRef place;
    std::int32_t lastPlace = 0; ///< `place.place` for a single place
    CompareResult result = CompareResult::NotCompared;
    ModuleDataPtr first; ///< the module that fills the places, null for none
    ModuleDataPtr second;
    std::int32_t firstBegin = 0; ///< the place where that module begins; 0 for none
    std::int32_t secondBegin = 0;
};

/// What a difference beside the modules is about.
enum class StationAspect {
    Kind, ///< the stations are of different kinds: no place is compared
    Name,
    Lock,
    RackCount,
    RackState,
    PlaceCount,
    Usability,
};

struct StationDifference {
    StationAspect aspect = StationAspect::Name;
    PlaceRef at = {}; ///< the rack or place; the station as a whole without it
};

/// Modules of a rack that stand in both stations, the second time so many places further on. Addresses, which often
/// follow the place, are not looked at.
struct MovedModules {
    std::int32_t rack = 0;
    std::int32_t shift = 0;      ///< places; not 0, negative towards place 1
    std::int32_t firstPlace = 0; ///< of the first and the last of them, in the first station
    std::int32_t lastPlace = 0;
    std::int32_t count = 0;
};

/// Two stations, place by place.
struct StationComparison {
    std::vector<StationDifference> stationDifferences;
    /// Rack R at index R, place N at index N - 1; as many of both as the larger station has, where anything is
    /// compared.
    std::vector<std::vector<CompareResult>> results;
    std::vector<PlaceDifference> placeDifferences; ///< all places that are not equal, in order
    std::vector<MovedModules> moved;               ///< a hint beside the results, which it does not change

    /// Nothing differs, and nothing is uncertain.
    bool AreSame() const { return stationDifferences.empty() && placeDifferences.empty(); }
    /// NotCompared for a place that neither station has.
    CompareResult ResultAt(PlaceRef place) const;
    /// What is told of the place; null where it is equal or not compared.
    const PlaceDifference* DifferenceAt(PlaceRef place) const;
};

/// Compares two stations. Takes time in proportion to the modules that they do not share, and to the places.
StationComparison CompareStations(const StationData& first, const StationData& second, const Catalogue& catalogue,
                                  const CompareOptions& options = {});

} // namespace zqbchwcx::reference
