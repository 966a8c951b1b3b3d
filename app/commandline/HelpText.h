#pragma once

#include "app/commandline/CommandLine.h"

#include <string>

namespace quillon_ed {

/// What "--help" shows for the command, with a line feed at its end.
std::string HelpText(Command command, Language language);

} // namespace quillon_ed
