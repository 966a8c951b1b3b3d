#pragma once

#include <string>

namespace quillon_ed {

/// Where the journals of this user's unsaved stations are.
std::string JournalDirectory();

} // namespace quillon_ed
