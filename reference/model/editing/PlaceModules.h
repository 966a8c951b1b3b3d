#pragma once

#include "zqbchwcx/reference/model/Outcome.h"
#include "zqbchwcx/reference/model/editing/Edit.h"
#include "zqbchwcx/reference/model/editing/StationDraft.h"

#include <cstdint>
#include <vector>

namespace zqbchwcx::reference {

/// Edits that put modules somewhere or take them away. Each is a pure function: it answers the whole edited station,
/// or the rule that stands against it.
///
/// A block lands in one piece or not at all, in one rack, beginning at the position. At a place, every place that a
/// module of the block would fill must be empty. At a gap, the block is inserted there: modules in its way shift to
/// the right, each to the next places that it fits; when there is no room on that side the block ends at the gap
/// and modules in its way shift to the left. A module keeps its own addresses where they are free and else gets the
/// first free ones, so that moved modules keep theirs and copies get new ones.
Outcome<Edit> PlaceBlock(const EditContext& context, std::int32_t lPosition, const ModuleBlock& block);

/// The same with the modules in the source places taken away first. The block must hold just these modules.
Outcome<Edit> MoveBlock(const EditContext& context, std::int32_t lPosition, const ModuleBlock& block,
                        const std::vector<PlaceRef>& sources);

/// Takes away the modules that fill the places, each as a whole. Refused where modules that need their interface
/// module or head would stay behind without it.
Outcome<Edit> DeleteAt(const EditContext& context, const std::vector<PlaceRef>& places);

} // namespace zqbchwcx::reference
