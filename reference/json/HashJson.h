#pragma once

#include "zqbchwcx/reference/json/JsonCursor.h"

#include <cstdint>
#include <string>

namespace zqbchwcx::reference {

/// A hash as files hold it: JSON numbers do not hold 64 bits everywhere, so it is written in hexadecimal.
std::string HashText(std::uint64_t hash);
std::uint64_t ReadHash(const JsonCursor& cursor);

} // namespace zqbchwcx::reference
