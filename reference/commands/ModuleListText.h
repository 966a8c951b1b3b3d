#pragma once

#include "zqbchwcx/reference/commands/ModuleList.h"

#include <string>
#include <vector>

namespace zqbchwcx::reference {

enum class ListFormat {
    Plain,    ///< columns aligned with blanks, for a terminal
    Csv,      ///< RFC 4180: commas, quotes where needed, lines end in CR LF
    Json,     ///< an array of objects; member names are the same in every language
    Markdown, ///< a pipe table
};

/// The list as a text that ends in a line end. Headings are in the language.
std::string WriteModuleList(const std::vector<ModuleRow>& rows, ListFormat format, Language language);

} // namespace zqbchwcx::reference
