#pragma once

#include "zqbchwcx/foundation/Array2D.h"
#include "zqbchwcx/reference/model/contract/StationState.h"

#include <cstdint>

namespace zqbchwcx::reference {

/// Per rack (from 0) and place (from 1, up to the longest rack): -1 where a copy of the module may be placed, else 0.
/// Linear in the places of the station. Without a module, no place is possible.
Array2D<std::int32_t> DropPlaces(const StationState& state, const ModuleData* module);

} // namespace zqbchwcx::reference
