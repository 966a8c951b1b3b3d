#pragma once

#include "app/commandline/CommandLine.h"
#include "app/commandline/RunCommand.h"

namespace quillon_ed {

/// Runs "diagnose". Needs a QCoreApplication. The result is the exit code.
int RunDiagnose(const CommandLine& line, const CommandStreams& streams);

} // namespace quillon_ed
