#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"
#include "zqbchwcx/reference/model/rules/AddressMap.h"
#include "zqbchwcx/reference/model/rules/Refusal.h"

#include <string_view>
#include <vector>

namespace zqbchwcx::reference {

/// The rules of one module by itself, each as a function over plain data. The place is the one that reasons name.

/// Everything against the module: type, texts, parameters (each, and those that must not exceed others), sub-modules
/// and (unless they are still to be allotted) addresses, its sub-modules included.
std::vector<Refusal> AgainstModule(const ModuleData& module, const Catalogue& catalogue, PlaceRef place);
/// Everything against the addresses of the module and its sub-modules, overlaps with other modules apart.
std::vector<Refusal> AgainstAddresses(const ModuleData& module, const Catalogue& catalogue, std::int32_t areaSize,
                                      PlaceRef place);

/// Against a range of addresses that does not lie wholly in the area.
Objection AgainstRange(AddressArea area, std::int32_t address, std::int32_t bytes, std::int32_t areaSize,
                       PlaceRef place);
/// Against a text that cannot be saved: too long, malformed UTF-8, or with a character of code 0.
Objection AgainstText(std::string_view text, PlaceRef place);
/// Against a value of a parameter: its kind, range, choice or length.
Objection AgainstValue(const ParameterDefinition& definition, const ParameterValue& value, PlaceRef place);

/// A module of the type as it comes from the catalogue, with its sub-modules and without addresses. A sub-module
/// type that the catalogue lacks is left out.
ModuleData NewModule(const ModuleType& type, const Catalogue& catalogue);

/// "inputs", "Eingänge".
LocalizedText AreaText(AddressArea area);

} // namespace zqbchwcx::reference
