#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// The texts of one language by their numbers.
using TextTable = std::map<std::int32_t, std::string>;

/// Reads a text file. Throws FileError (file, JSON pointer, reason) for anything that is not exactly one, another
/// language than the expected one ("en", "de") included.
TextTable LoadTextTable(const std::string& fileName, std::string_view language);
TextTable ParseTextTable(std::string_view text, std::string_view fileName, std::string_view language);

} // namespace zqbchwcx::reference
