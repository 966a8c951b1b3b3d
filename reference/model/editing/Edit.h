#pragma once

#include "zqbchwcx/reference/model/PlaceRef.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <vector>

namespace zqbchwcx::reference {

/// An edit that the rules allow: the station after it, and the places that it was about (those that received
/// modules, every place of a module that fills several).
struct Edit {
    StationData data;
    std::vector<PlaceRef> places;
};

/// Modules as they stand side by side: a null is an empty place that keeps the distance.
using ModuleBlock = std::vector<ModuleDataPtr>;

} // namespace zqbchwcx::reference
