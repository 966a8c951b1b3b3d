#pragma once

#include "zqbchwcx/reference/model/Outcome.h"
#include "zqbchwcx/reference/model/editing/Edit.h"
#include "zqbchwcx/reference/model/editing/StationDraft.h"

#include <cstdint>
#include <vector>

namespace zqbchwcx::reference {

/// A module and where it is to begin.
struct Placement {
    ModuleDataPtr module;
    PlaceRef firstPlace;
};
using Placements = std::vector<Placement>;

/// A module that makes room for others.
struct Shift {
    ModuleDataPtr module;
    PlaceRef from;
    PlaceRef to;
};

/// Where a block lands, and what makes room for it.
struct BlockLayout {
    Placements placed;
    std::vector<Shift> shifts;
};

/// Lays the block out at the position (a place or a gap) of the draft, or says which rule stands against it. Every
/// type in the block is known to the catalogue. Changes nothing.
Outcome<BlockLayout> LayOut(StationDraft& draft, std::int32_t lPosition, const ModuleBlock& block);

} // namespace zqbchwcx::reference
