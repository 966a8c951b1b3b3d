#include "zqbchwcx/reference/commands/TableText.h"

#include "zqbchwcx/reference/commands/MarkdownText.h"
#include "zqbchwcx/reference/commands/TerminalLine.h"
#include "zqbchwcx/reference/commands/WrapLine.h"

#include <algorithm>
#include <cstddef>

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

} // namespace

std::string WriteAligned(std::vector<TextRow> rows)
{
    std::vector<std::size_t> widths(rows.front().size());
    for (TextRow& row : rows)
        for (std::size_t i = 0; i < row.size(); ++i) {
            row[i] = TerminalLine(row[i]);
            widths[i] = std::max(widths[i], CharacterCount(row[i]));
        }
    std::string text;
    for (const TextRow& row : rows) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i)
            line += row[i] + std::string(widths[i] - CharacterCount(row[i]) + 2, ' ');
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
        text += MarkdownRow(row);
        if (&row == &rows.front()) text += MarkdownRow(TextRow(row.size(), "---"));
    }
    return text;
}

} // namespace zqbchwcx::reference
