#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// "/" and the name with "~" and "/" escaped, as JSON pointers (RFC 6901) want it.
std::string PointerToken(std::string_view name);

/// The JSON pointer from the root to a value inside it, found by the value's own address. Costs a walk over the
/// document, so that reading a correct one costs nothing.
std::string FindPointer(const nlohmann::json& root, const nlohmann::json& value);

} // namespace zqbchwcx::reference
