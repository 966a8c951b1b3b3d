#include "zqbchwcx/reference/commands/ModuleListText.h"

#include "zqbchwcx/reference/commands/TerminalLine.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace zqbchwcx::reference {
namespace {

struct Column {
    const char* key; ///< in JSON
    LocalizedText heading;
    std::string (*cell)(const ModuleRow&);
};

const std::array<Column, 8>& Columns()
{
    static const std::array<Column, 8> columns{{
        {"rack", {"Rack", "Träger"}, [](const ModuleRow& row) { return std::to_string(row.rack); }},
        {"place", {"Place", "Platz"}, [](const ModuleRow& row) { return std::to_string(row.place); }},
        {"subModule",
         {"Sub-module", "Submodul"},
         [](const ModuleRow& row) { return row.subModule == 0 ? std::string() : std::to_string(row.subModule); }},
        {"module", {"Module", "Baugruppe"}, [](const ModuleRow& row) { return row.module; }},
        {"orderNumber", {"Order number", "Bestellnummer"}, [](const ModuleRow& row) { return row.orderNumber; }},
        {"inputs", {"I address", "E-Adresse"}, [](const ModuleRow& row) { return row.inputs; }},
        {"outputs", {"O address", "A-Adresse"}, [](const ModuleRow& row) { return row.outputs; }},
        {"comment", {"Comment", "Kommentar"}, [](const ModuleRow& row) { return row.comment; }},
    }};
    return columns;
}

using Line = std::array<std::string, 8>;

Line Headings(Language language)
{
    Line line;
    for (std::size_t i = 0; i < line.size(); ++i) line[i] = Columns()[i].heading.In(language);
    return line;
}

Line Cells(const ModuleRow& row)
{
    Line line;
    for (std::size_t i = 0; i < line.size(); ++i) line[i] = Columns()[i].cell(row);
    return line;
}

std::string CsvField(const std::string& text)
{
    if (text.find_first_of(",\"\r\n") == std::string::npos) return text;
    std::string field = "\"";
    for (const char character : text) field += character == '"' ? std::string("\"\"") : std::string(1, character);
    return field + "\"";
}

std::string CsvLine(const Line& line)
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

std::string MarkdownLine(const Line& line)
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

std::string WritePlain(const std::vector<ModuleRow>& rows, Language language)
{
    std::vector<Line> lines{Headings(language)};
    for (const ModuleRow& row : rows) lines.push_back(Cells(row));
    std::array<std::size_t, 8> widths{};
    for (Line& line : lines)
        for (std::size_t i = 0; i < line.size(); ++i) {
            line[i] = TerminalLine(line[i]);
            widths[i] = std::max(widths[i], Width(line[i]));
        }
    std::string text;
    for (const Line& line : lines) {
        std::string row;
        for (std::size_t i = 0; i < line.size(); ++i) row += line[i] + std::string(widths[i] - Width(line[i]) + 2, ' ');
        text += row.substr(0, row.find_last_not_of(' ') + 1) + "\n";
    }
    return text;
}

std::string WriteCsv(const std::vector<ModuleRow>& rows, Language language)
{
    std::string text = CsvLine(Headings(language));
    for (const ModuleRow& row : rows) text += CsvLine(Cells(row));
    return text;
}

std::string WriteMarkdown(const std::vector<ModuleRow>& rows, Language language)
{
    Line rule;
    rule.fill("---");
    std::string text = MarkdownLine(Headings(language)) + MarkdownLine(rule);
    for (const ModuleRow& row : rows) text += MarkdownLine(Cells(row));
    return text;
}

std::string WriteJson(const std::vector<ModuleRow>& rows)
{
    auto list = nlohmann::ordered_json::array();
    for (const ModuleRow& row : rows) {
        nlohmann::ordered_json entry = {{"rack", row.rack}, {"place", row.place}};
        if (row.subModule != 0) entry["subModule"] = row.subModule;
        entry["module"] = row.module;
        entry["orderNumber"] = row.orderNumber;
        if (!row.inputs.empty()) entry["inputs"] = row.inputs;
        if (!row.outputs.empty()) entry["outputs"] = row.outputs;
        if (!row.comment.empty()) entry["comment"] = row.comment;
        list.push_back(std::move(entry));
    }
    constexpr int indentation = 2;
    return list.dump(indentation, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

} // namespace

std::string WriteModuleList(const std::vector<ModuleRow>& rows, ListFormat format, Language language)
{
    switch (format) {
    case ListFormat::Csv:
        return WriteCsv(rows, language);
    case ListFormat::Json:
        return WriteJson(rows);
    case ListFormat::Markdown:
        return WriteMarkdown(rows, language);
    case ListFormat::Plain:
        break;
    }
    return WritePlain(rows, language);
}

} // namespace zqbchwcx::reference
