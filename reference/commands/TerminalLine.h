#pragma once

#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// A text that somebody else wrote, UTF-8, as part of one line of a terminal: a terminal obeys the control characters
/// that it is sent, so these and line ends are blanks, and marks that turn the direction of writing are left out.
std::string TerminalLine(std::string_view text);

} // namespace zqbchwcx::reference
