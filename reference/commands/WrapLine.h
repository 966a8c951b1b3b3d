#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// The characters of a text in UTF-8.
std::size_t CharacterCount(std::string_view text);

/// Breaks a line, given without its end, at blanks into lines of at most that many characters, each with its end. What
/// goes on is indented as the line is, and a little more. A longer word is broken where it must be. Width 0: one line.
std::string WrapLine(std::string_view line, std::size_t width);

} // namespace zqbchwcx::reference
