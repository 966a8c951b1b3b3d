#pragma once

#include "zqbchwcx/reference/json/JsonCursor.h"
#include "zqbchwcx/reference/model/StationData.h"

namespace zqbchwcx::reference {

/// A parameter's value: true or false, a whole number, a number with a fraction or exponent, or a string.
ParameterValue ParameterFromJson(const JsonCursor& value);
nlohmann::ordered_json ParameterToJson(const ParameterValue& value);

} // namespace zqbchwcx::reference
