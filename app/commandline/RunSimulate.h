#pragma once

#include "app/commandline/CommandLine.h"
#include "app/commandline/RunCommand.h"

namespace quillon_ed {

/// Runs "simulate" until a signal or "quit" on standard input. Needs a QCoreApplication. The result is the exit code.
int RunSimulate(const CommandLine& line, const CommandStreams& streams);

} // namespace quillon_ed
