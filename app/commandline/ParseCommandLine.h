#pragma once

#include "app/commandline/CommandLine.h"

#include <string>
#include <variant>
#include <vector>

namespace quillon_ed {

/// Arguments that make no sense: why, and the command whose help explains it.
struct UsageError {
    LocalizedText reason;
    CommandLine understood; ///< as far as it was read
};

/// Reads the arguments behind the program's name. "--" ends the options.
std::variant<CommandLine, UsageError> ParseCommandLine(const std::vector<std::string>& arguments);

/// The word a user types for the command; empty for opening.
std::string CommandWord(Command command);

} // namespace quillon_ed
