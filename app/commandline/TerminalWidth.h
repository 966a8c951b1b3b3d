#pragma once

#include <cstddef>

namespace quillon_ed {

/// The characters in a line of the terminal that standard output is; 0 when it is none.
std::size_t TerminalWidth();

} // namespace quillon_ed
