#include "zqbchwcx/reference/commands/TableText.h"

#include "zqbchwcx/reference/commands/TerminalLine.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace zqbchwcx::reference {
namespace {

std::string CsvField(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string field = "\"";
    for (const char character : text) field += character == '"' ? std::string("\"\"") : std::string(1, character);
    return field + "\"";
}

std::string CsvLine(const TextRow& line)
{
    std::string text;
    for (const std::string& cell : line) text.append(&cell == &line.front() ? "" : ",").append(CsvField(cell));
    return text + "\r\n";
}

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

std::string MarkdownLine(const TextRow& line)
{
    std::string text = "|";
    for (const std::string& cell : line) text.append(" ").append(MarkdownField(cell)).append(" |");
    return text + "\n";
}

/// The columns that a text takes, as far as counting its characters tells.
std::size_t Width(const std::string& text)
{
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

} // namespace

std::string WriteAligned(std::vector<TextRow> rows)
{
    std::vector<std::size_t> widths(rows.front().size());
    for (TextRow& row : rows)
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = TerminalLine(row[i]);
            widths[i] = std::max(widths[i], Width(row[i]));
        }
    std::string text;
    for (const TextRow& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) line += row[i] + std::string(widths[i] - Width(row[i]) + 2, ' ');
        text += line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
    }
    return text;
}

std::string WriteCsv(const std::vector<TextRow>& rows)
{
    std::string text;
    for (const TextRow& row : rows) text += CsvLine(row);
    return text;
}

std::string WriteMarkdown(const std::vector<TextRow>& rows)
{
    std::string text;
    for (const TextRow& row : rows) {
        text += MarkdownLine(row);
        if (&row == &rows.front()) text += MarkdownLine(TextRow(row.size(), "---"));
    }
    return text;
}

} // namespace zqbchwcx::reference
