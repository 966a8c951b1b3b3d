#pragma once

#include "app/export/StationPages.h"
#include "zqbchwcx/reference/model/contract/Station.h"

class QPrinter;

namespace quillon_ed {

/// Prints the overview of a central station, and the module list of any station, in the language of the station's
/// context. Only the printer's page range is printed. A printer that writes a file has it replaced in one step; throws
/// FileError when it cannot be written, and the file is then as it was. False when the printer cannot be used.
bool PrintStation(const zqbchwcx::reference::StationPtr& station, const PageHeader& header, QPrinter& printer);

} // namespace quillon_ed
