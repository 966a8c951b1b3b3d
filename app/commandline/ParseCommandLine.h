#pragma once

#include "app/commandline/CommandLine.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace quillon_ed {

/// Arguments that make no sense: why, and the command whose help explains it.
struct UsageError {
    LocalizedText reason;
    CommandLine understood; ///< as far as it was read
};

/// Whether there is a file of that name.
bool IsFileName(const std::string& name);

/// Reads the arguments behind the program's name. "--" ends the options. A first word without a dot or slash that is
/// neither a command nor a file is a mistyped command.
std::variant<CommandLine, UsageError>
ParseCommandLine(const std::vector<std::string>& arguments,
                 const std::function<bool(const std::string& name)>& isFileName = IsFileName);

/// The word a user types for the command; empty for opening.
std::string CommandWord(Command command);

} // namespace quillon_ed
