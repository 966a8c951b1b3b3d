#pragma once

#include "app/commandline/CommandLine.h"

namespace quillon_ed {

/// Opens the stations in windows and runs until the last window is closed. Needs a QApplication. The result is the
/// exit code.
int OpenStations(const CommandLine& line);

} // namespace quillon_ed
