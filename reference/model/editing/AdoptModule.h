#pragma once

#include "zqbchwcx/reference/model/Outcome.h"
#include "zqbchwcx/reference/model/editing/StationDraft.h"

namespace zqbchwcx::reference {

/// The module made ready for the draft: checked, with its sub-modules, and with an address for each of its areas: its
/// own one where that is free, else the first free one.
Outcome<ModuleDataPtr> AdoptModule(StationDraft& draft, const ModuleDataPtr& module, PlaceRef place);

} // namespace zqbchwcx::reference
