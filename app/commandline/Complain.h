#pragma once

#include "zqbchwcx/reference/commands/TerminalLine.h"

#include <ostream>
#include <string_view>

namespace quillon_ed {

/// Tells on the stream why something was not done; names and reasons may hold what somebody else wrote.
inline void Complain(std::ostream& err, std::string_view reason)
{
    err << "quillon-ed: " << zqbchwcx::reference::TerminalLine(reason) << '\n';
}

} // namespace quillon_ed
