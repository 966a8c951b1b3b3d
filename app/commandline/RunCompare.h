#pragma once

#include "app/commandline/CommandLine.h"
#include "app/commandline/RunCommand.h"

namespace quillon_ed {

/// Runs "compare". A HTML report needs a QApplication, on any platform, for its pictures. The exit code is the one of
/// "diff": 0 for the same, 1 for different stations, 2 for trouble.
int RunCompare(const CommandLine& line, const CommandStreams& streams);

} // namespace quillon_ed
