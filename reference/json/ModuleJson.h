#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/json/JsonCursor.h"
#include "zqbchwcx/reference/model/StationData.h"

namespace zqbchwcx::reference {

/// The module that a JSON object describes. What a module may hold at all (lengths, number ranges, one level of
/// sub-modules) is refused with a FileError; whether it obeys the rules of the plant is not judged. An order number
/// that the catalogue lacks is kept as it is.
ModuleData ModuleFromJson(const JsonCursor& module, const Catalogue& catalogue);

/// The module as a JSON object, without the members that hold nothing.
nlohmann::ordered_json ModuleToJson(const ModuleData& module);

} // namespace zqbchwcx::reference
