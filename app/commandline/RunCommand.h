#pragma once

#include "app/commandline/CommandLine.h"

#include <ostream>

namespace quillon_ed {

struct CommandStreams {
    std::ostream& out;
    std::ostream& err;
};

/// The language that the command line or, without it there, the desktop asks for.
Language LanguageOf(const CommandLine& line);

/// Runs "check", "list" or "convert", which need neither a display nor an application object. Failures are told on
/// the error stream; the result is the exit code.
int RunCommand(const CommandLine& line, const CommandStreams& streams);

/// The exit code of a command that has said all on its output stream: a failure, told on the error stream, when that
/// could not be written, as on a full disk.
int EndOutput(const CommandStreams& streams, Language language, int exitCode);

} // namespace quillon_ed
