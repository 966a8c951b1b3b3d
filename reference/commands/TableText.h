#pragma once

#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// A table as a text: rows of cells, the first one the headings, and all of them as long as that one.
using TextRow = std::vector<std::string>;

/// Columns aligned with blanks, for a terminal.
std::string WriteAligned(std::vector<TextRow> rows);
/// RFC 4180: commas, quotes where needed, lines end in CR LF.
std::string WriteCsv(const std::vector<TextRow>& rows);
/// A pipe table.
std::string WriteMarkdown(const std::vector<TextRow>& rows);

} // namespace zqbchwcx::reference
