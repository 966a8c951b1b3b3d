#include "zqbchwcx/reference/commands/ModuleListText.h"

#include "zqbchwcx/reference/commands/TableText.h"

#include <nlohmann/json.hpp>

#include <array>

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

std::vector<TextRow> TableOf(const std::vector<ModuleRow>& rows, Language language)
{
    std::vector<TextRow> table(1);
    for (const Column& column : Columns()) table[0].push_back(column.heading.In(language));
    for (const ModuleRow& row : rows) {
        table.emplace_back();
        for (const Column& column : Columns()) table.back().push_back(column.cell(row));
    }
    return table;
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
        return WriteCsv(TableOf(rows, language));
    case ListFormat::Json:
        return WriteJson(rows);
    case ListFormat::Markdown:
        return WriteMarkdown(TableOf(rows, language));
    case ListFormat::Plain:
        break;
    }
    return WriteAligned(TableOf(rows, language));
}

} // namespace zqbchwcx::reference
