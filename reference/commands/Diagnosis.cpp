#include "zqbchwcx/reference/commands/Diagnosis.h"

#include "zqbchwcx/reference/commands/ModuleList.h"
#include "zqbchwcx/reference/commands/TableText.h"
#include "zqbchwcx/reference/commands/TerminalLine.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <map>

namespace zqbchwcx::reference {
namespace {

using Json = nlohmann::ordered_json;

std::string Dump(const Json& json, int indentation)
{
    return json.dump(indentation, ' ', false, Json::error_handler_t::replace) + "\n";
}

std::string NumberOrNothing(std::int32_t number)
{
    return number == 0 ? std::string() : std::to_string(number);
}

TextRow FindingHeadings(Language language)
{
    if (language == Language::German)
        return {"Platz", "Baugruppe", "Bestellnummer", "Fehler", "Kanal", "Code", "Seit", "Abhilfe"};
    return {"Place", "Module", "Order number", "Fault", "Channel", "Code", "Since", "What to do"};
}

std::vector<TextRow> FindingTable(const Diagnosis& diagnosis, Language language)
{
    std::vector<TextRow> table{FindingHeadings(language)};
    for (const ModuleFindings& module : diagnosis.modules) {
        if (!module.finding) continue;
        const PlantFinding& finding = *module.finding;
        table.push_back({PlantItemText(module.item), module.name, module.orderNumber, finding.what.In(language),
                         NumberOrNothing(finding.channel), NumberOrNothing(finding.faultCode), TimeText(finding.since),
                         finding.remedy.In(language)});
    }
    return table;
}

std::string WriteLines(const Diagnosis& diagnosis, Language language)
{
    const bool isGerman = language == Language::German;
    std::string text =
        TerminalLine(diagnosis.station + ": " + ConnectionText(diagnosis.connection).In(language)) + "\n";
    if (const std::string state = OperatingStateText(diagnosis.controller); !state.empty())
        text += (isGerman ? "Steuerung: " : "Controller: ") + state + "\n";
    for (const ComponentVersion& version : diagnosis.versions)
        text += version.component.In(language) + ": " + version.version + "\n";
    if (!diagnosis.HasFailure()) return text + (isGerman ? "Keine Fehler.\n" : "No faults.\n");
    return text + WriteAligned(FindingTable(diagnosis, language));
}

Json ItemJson(const PlantItem& item)
{
    Json json = {{"rack", item.place.rack}, {"place", item.place.place}};
    if (item.subModule != 0) json["subModule"] = item.subModule;
    return json;
}

std::string WriteJson(const Diagnosis& diagnosis, Language language)
{
    Json modules = Json::array();
    for (const ModuleFindings& module : diagnosis.modules) {
        Json entry = ItemJson(module.item);
        entry["module"] = module.name;
        entry["orderNumber"] = module.orderNumber;
        entry["faulty"] = module.finding.has_value();
        if (const auto& finding = module.finding) {
            entry["what"] = finding->what.In(language);
            if (finding->channel != 0) entry["channel"] = finding->channel;
            if (finding->faultCode != 0) entry["code"] = finding->faultCode;
            entry["since"] = TimeText(finding->since);
            if (!finding->remedy.en.empty()) entry["remedy"] = finding->remedy.In(language);
        }
        modules.push_back(std::move(entry));
    }
    Json versions = Json::array();
    for (const ComponentVersion& version : diagnosis.versions)
        versions.push_back({{"component", version.component.In(language)}, {"version", version.version}});
    return Dump({{"station", diagnosis.station},
                 {"connection", ConnectionText(diagnosis.connection).In(language)},
                 {"controller", OperatingStateText(diagnosis.controller)},
                 {"versions", std::move(versions)},
                 {"modules", std::move(modules)}},
                2);
}

std::string WriteMapTable(std::vector<TextRow> table, ListFormat format)
{
    switch (format) {
    case ListFormat::Csv:
        return WriteCsv(table);
    case ListFormat::Json: {
        Json rows = Json::array();
        for (auto row = table.begin() + 1; row != table.end(); ++row)
            rows.push_back(
                {{"register", row->at(0)}, {"value", row->at(1)}, {"meaning", row->at(2)}, {"module", row->at(3)}});
        return Dump(rows, 2);
    }
    case ListFormat::Markdown:
        return WriteMarkdown(table);
    case ListFormat::Plain:
        break;
    }
    return WriteAligned(std::move(table));
}

struct MapRow {
    std::size_t first;
    std::size_t last;
    LocalizedText meaning;
    std::string value = {}; ///< that it always has, or empty
};

std::vector<MapRow> HeadRows(const RegisterMap& map)
{
    const std::vector<std::uint16_t> fresh = map.FreshRegisters();
    std::vector<MapRow> rows{{MapHead::Magic, MapHead::Magic, {"Identification of the map", "Kennung der Belegung"}},
                             {MapHead::Version, MapHead::Version, {"Version of the map", "Version der Belegung"}}};
    for (std::size_t i = MapHead::Fingerprint; i < MapHead::ChangeCounter; ++i)
        rows.push_back({i, i, {"Fingerprint of the station", "Fingerabdruck der Station"}});
    for (MapRow& row : rows) row.value = std::to_string(fresh[row.first]);
    rows.push_back({MapHead::ChangeCounter,
                    MapHead::ChangeCounter,
                    {"Change counter: one more (after 65535: 0) whenever another register has changed",
                     "Änderungszähler: um eins weiter (nach 65535: 0), wenn ein anderes Register sich geändert hat"}});
    rows.push_back({MapHead::ControllerState,
                    MapHead::ControllerState,
                    {"Controller: 0 none, 1 RUN, 2 STOP, 3 HOLD", "Steuerung: 0 keine, 1 RUN, 2 STOP, 3 HOLD"}});
    rows.push_back({MapHead::ComponentCount,
                    MapHead::ComponentCount,
                    {"Number of components with a version, 0 to 8", "Anzahl der Komponenten mit Version, 0 bis 8"}});
    for (std::size_t i = 0; i < MapHead::MostComponents; ++i) {
        const std::size_t first = MapHead::FirstComponent + i * MapHead::ComponentSize;
        rows.push_back(
            {first,
             first + MapHead::ComponentSize - 1,
             {"Component " + std::to_string(i + 1) +
                  ": kind (1 hardware, 2 firmware, 3 boot loader, 4 user program), version, two further parts",
              "Komponente " + std::to_string(i + 1) +
                  ": Art (1 Hardware, 2 Firmware, 3 Urlader, 4 Anwenderprogramm), Version, zwei weitere Teile"}});
    }
    const std::size_t unused = MapHead::FirstComponent + MapHead::MostComponents * MapHead::ComponentSize;
    rows.push_back({unused, MapHead::FirstItem - 1, {"Kept free", "Frei gehalten"}, "0"});
    return rows;
}

/// Numbers from 0 and without the prefix that some programs put before holding registers.
std::string RegisterText(const MapRow& row)
{
    const std::string first = std::to_string(row.first);
    return row.first == row.last ? first : first + "-" + std::to_string(row.last);
}

std::string WordLayout(Language language)
{
    const LocalizedText text{"\nA state word, bit 0 the lowest:\n"
                             "  0-4    fault code, 1 to 30; 0 none\n"
                             "  5-10   channel, from 1; 0 the module as a whole\n"
                             "  11     the module is faulty\n"
                             "  12     the module works and reports a fault\n"
                             "  13     the module cannot be reached\n"
                             "  14-15  operating state: 0 none, 1 RUN, 2 STOP, 3 HOLD\n"
                             "  65535  no module is plugged in\n",
                             "\nEin Zustandswort, Bit 0 ist das niedrigste:\n"
                             "  0-4    Fehlercode, 1 bis 30; 0 keiner\n"
                             "  5-10   Kanal, ab 1; 0 die Baugruppe als Ganzes\n"
                             "  11     die Baugruppe ist gestört\n"
                             "  12     die Baugruppe arbeitet und meldet einen Fehler\n"
                             "  13     die Baugruppe ist nicht erreichbar\n"
                             "  14-15  Betriebszustand: 0 keiner, 1 RUN, 2 STOP, 3 HOLD\n"
                             "  65535  keine Baugruppe gesteckt\n"};
    return text.In(language);
}

} // namespace

bool Diagnosis::HasFailure() const
{
    return std::any_of(modules.begin(), modules.end(),
                       [](const ModuleFindings& module) { return module.finding.has_value(); });
}

Diagnosis Diagnose(const Plant& plant, const StationData& station, const Catalogue& catalogue, Language language)
{
    return {station.name, plant.State().connection, plant.ControllerState(), plant.ComponentVersions(),
            ModulesOf(plant, station, catalogue, language)};
}

std::string WriteDiagnosis(const Diagnosis& diagnosis, ListFormat format, Language language)
{
    switch (format) {
    case ListFormat::Csv:
        return WriteCsv(FindingTable(diagnosis, language));
    case ListFormat::Json:
        return WriteJson(diagnosis, language);
    default:
        return WriteLines(diagnosis, language);
    }
}

std::string WriteLogLine(const PlantLogEntry& entry, ListFormat format, Language language)
{
    const std::string place = entry.item ? PlantItemText(*entry.item) : std::string();
    const std::string event = LogEventText(entry.event).In(language);
    if (format == ListFormat::Json) {
        Json json = {{"at", TimeText(entry.at)}};
        if (entry.item) {
            json.update(ItemJson(*entry.item));
            json["module"] = entry.module.In(language);
            json["event"] = LogEventText(entry.event).en;
        }
        json["what"] = entry.what.In(language);
        return Dump(json, -1);
    }
    const TextRow row{TimeText(entry.at), place, entry.module.In(language), event, entry.what.In(language)};
    if (format == ListFormat::Csv) return WriteCsv({row});
    std::string line;
    for (const std::string& cell : row)
        if (!cell.empty()) line += (line.empty() ? "" : "  ") + cell;
    return TerminalLine(line) + "\n";
}

std::string WriteRegisterMap(const StationData& station, const Catalogue& catalogue, ListFormat format,
                             Language language)
{
    const bool isGerman = language == Language::German;
    std::vector<TextRow> table{isGerman ? TextRow{"Register", "Wert", "Bedeutung", "Baugruppe"}
                                        : TextRow{"Register", "Value", "Meaning", "Module"}};
    const RegisterMap map(station);
    for (const MapRow& row : HeadRows(map))
        table.push_back({RegisterText(row), row.value, row.meaning.In(language), ""});
    std::map<PlantItem, std::string> modules;
    for (const ModuleRow& row : ListModules(station, catalogue, language))
        modules[{{row.rack, row.place}, row.subModule}] = row.orderNumber + " " + row.module;
    for (const PlantItem& item : map.Items())
        table.push_back({std::to_string(*map.RegisterOf(item)), "",
                         (isGerman ? "Zustand von " : "State of ") + PlantItemText(item), modules[item]});
    return WriteMapTable(std::move(table), format) +
           (format == ListFormat::Plain ? WordLayout(language) : std::string());
}

} // namespace zqbchwcx::reference
