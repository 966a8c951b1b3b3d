#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/json/JsonDocument.h"

#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// Reads catalogue files into one catalogue; parameter sets are shared by all of them. Throws FileError (file, JSON
/// pointer, reason) for members that are missing, unknown or of another type, for numbers out of range, for an order
/// number that stands twice, and for sub-modules, parameter sets and tree entries that do not exist.
Catalogue LoadCatalogue(const std::vector<std::string>& fileNames);

/// All files "*.json" of a directory, in the order of their names.
Catalogue LoadCatalogueDirectory(const std::string& directory);

/// The same from documents that have been read. The groups of the documents follow one another.
Catalogue ReadCatalogue(const std::vector<JsonDocument>& documents);

} // namespace zqbchwcx::reference
