#include "zqbchwcx/reference/commands/MarkdownText.h"

#include "zqbchwcx/reference/commands/TerminalLine.h"

#include <cstddef>
#include <string_view>

namespace zqbchwcx::reference {
namespace {

/// A cell of a table in which a line is a row: a bar would end the cell, a line end the table, and what means something
/// in Markdown or HTML would not be seen as it was written.
std::string MarkdownField(std::string_view text)
{
    constexpr std::string_view meaning = "|\\<&*_`[";
    std::string field;
    for (;;) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        for (const char character : TerminalLine(line)) {
            if (meaning.find(character) != std::string_view::npos) field += '\\';
            field += character;
        }
        if (end == std::string_view::npos) break;
        field += "<br>";
        text.remove_prefix(end + 1);
    }
    return field;
}

} // namespace

std::string MarkdownRow(std::span<const std::string> cells)
{
    std::string text = "|";
    for (const std::string& cell : cells) text.append(" ").append(MarkdownField(cell)).append(" |");
    return text + "\n";
}

} // namespace zqbchwcx::reference
