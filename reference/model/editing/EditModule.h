#pragma once

#include "zqbchwcx/reference/model/Outcome.h"
#include "zqbchwcx/reference/model/editing/Edit.h"
#include "zqbchwcx/reference/model/editing/StationDraft.h"

#include <string_view>

namespace zqbchwcx::reference {

/// Edits of the one module that fills a place. Each is a pure function, as those of PlaceModules.h.

/// Configures the module anew: name, comment, addresses, parameters and those of its sub-modules; its type stays.
/// Addresses must be free; parameters that equal their defaults are dropped.
Outcome<Edit> ReplaceModule(const EditContext& context, PlaceRef place, const ModuleData& module);

/// Writes one attribute (ModuleAttributes.h). An address is its first byte, or the whole range such as "4..7".
Outcome<Edit> SetAttribute(const EditContext& context, PlaceRef place, std::string_view name, std::string_view value);

} // namespace zqbchwcx::reference
