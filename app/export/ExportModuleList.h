#pragma once

#include "app/export/PrintedTable.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <QString>

namespace quillon_ed {

/// Writes the module list with addresses into the file, replacing it in one step: ".csv" or ".md", as its ending says.
/// Throws FileError when the file name has another ending or the file cannot be written; it is then as it was.
void ExportModuleList(const zqbchwcx::reference::StationData& station, const zqbchwcx::reference::Catalogue& catalogue,
                      zqbchwcx::reference::Language language, const QString& fileName);

/// The module list as it is printed.
PrintedTable ModuleListTable(const zqbchwcx::reference::StationData& station,
                             const zqbchwcx::reference::Catalogue& catalogue, zqbchwcx::reference::Language language);

} // namespace quillon_ed
