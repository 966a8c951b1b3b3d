#pragma once

#include "reference/model/Outcome.h"
#include "reference/model/editing/Edit.h"
#include "reference/model/editing/StationDraft.h"

#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// Edits of one module in its place. Each is a pure function, as those of PlaceModules.h.

/// Puts another configuration of the same type into the place: name, comment, addresses, parameters and those of the
/// sub-modules. Addresses must be free; parameters that equal their defaults are dropped.
Outcome<Edit> ReplaceModule(const EditContext& context, PlaceRef place, const ModuleData& module);

/// Writes one attribute of the module: "NAME", "COMMENT", "I-ADDRESS", "O-ADDRESS", or "PARAMETER " and the key of a
/// parameter, in upper or lower case. An address is its first byte, or the whole range such as "4..7". Parameter
/// values: booleans "0"/"1"/"false"/"true", numbers with a decimal point, the key of a choice, a text.
Outcome<Edit> SetAttribute(const EditContext& context, PlaceRef place, std::string_view name, std::string_view value);

/// What `SetAttribute` reads and the views show. Empty for an attribute that the module does not have.
std::string AttributeText(const ModuleData& module, const ModuleType* type, std::string_view name);
bool HasAttribute(const ModuleData& module, const ModuleType* type, std::string_view name);

/// "4", or "4..7" for several bytes; empty without an address.
std::string AddressText(AddressArea area, const ModuleData& module, const ModuleType* type);

/// A parameter's value as text that `SetAttribute` reads.
std::string ValueText(const ParameterValue& value);
/// The module's value of a parameter: its own, or the default.
const ParameterValue& ValueOf(const ModuleData& module, const ParameterDefinition& definition);

} // namespace zqbchwcx::reference
