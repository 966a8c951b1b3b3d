#pragma once

#include <span>
#include <string>

namespace zqbchwcx::reference {

/// A row of a pipe table with its line end. Cells are texts that somebody else wrote: what means something in Markdown
/// or HTML is seen as it was written.
std::string MarkdownRow(std::span<const std::string> cells);

} // namespace zqbchwcx::reference
