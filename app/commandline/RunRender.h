#pragma once

#include "app/commandline/CommandLine.h"
#include "app/commandline/RunCommand.h"

namespace quillon_ed {

/// Runs "render". Needs a QApplication, on any platform. The result is the exit code.
int RunRender(const CommandLine& line, const CommandStreams& streams);

} // namespace quillon_ed
