#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/files/FileSystem.h"

#include <string>

namespace zqbchwcx::reference {

/// Reads a station file of any version that is known and writes it as what the target's extension says: ".json" a
/// station file of the newest version, ".csv" and ".md" its module list. The target is replaced in one step. Throws
/// FileError, for an extension that says nothing as well; the target is then as it was.
void ConvertStation(const std::string& sourceFile, const std::string& targetFile, const Catalogue& catalogue,
                    Language language, FileSystem& files = SystemFiles());

} // namespace zqbchwcx::reference
