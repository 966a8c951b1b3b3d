#include "zqbchwcx/reference/compare/CompareReportText.h"

#include "zqbchwcx/reference/commands/MarkdownText.h"
#include "zqbchwcx/reference/commands/TerminalLine.h"
#include "zqbchwcx/reference/commands/WrapLine.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace zqbchwcx::reference {
namespace {

/// A value that is nothing could not be seen.
std::string Shown(const std::string& value)
{
    return value.empty() ? "-" : value;
}

std::string Change(const DifferenceText& text)
{
    return FullName(text) + ": " + Shown(text.value1) + " -> " + Shown(text.value2);
}

std::string Heading(const ReportedPlace& place, Language language)
{
    std::string line = PlacesText(place, language) + ": " + ResultText(place.result).In(language) + ": " +
                       (place.first.empty() ? place.second : place.first);
    if (!place.first.empty() && !place.second.empty() && place.first != place.second) line += " -> " + place.second;
    return line;
}

std::string WriteText(const CompareReport& report, Language language, std::size_t width)
{
    std::string text;
    const auto line = [&](const std::string& content) { text += WrapLine(TerminalLine(content), width); };
    line("--- " + report.files[0] + ": " + report.names[0]);
    line("+++ " + report.files[1] + ": " + report.names[1]);
    for (const DifferenceText& each : report.station) line(Change(each));
    for (const ReportedPlace& place : report.places) {
        line(Heading(place, language));
        for (const DifferenceText& each : place.details) line("    " + Change(each));
    }
    for (const std::string& hint : report.moved) line(hint);
    line(Summary(report, language));
    return text;
}

std::string WriteMarkdown(const CompareReport& report, Language language)
{
    using Row = std::array<std::string, 4>;
    const Row heading{LocalizedText{"Place", "Platz"}.In(language),
                      LocalizedText{"Difference", "Unterschied"}.In(language), report.files[0], report.files[1]};
    std::string text = MarkdownRow(heading) + MarkdownRow(Row{"---", "---", "---", "---"});
    const auto row = [&](const std::string& place, const DifferenceText& each) {
        text += MarkdownRow(Row{place, FullName(each), each.value1, each.value2});
    };
    for (const DifferenceText& each : report.station) row({}, each);
    for (const ReportedPlace& place : report.places) {
        text += MarkdownRow(
            Row{PlacesText(place, language), ResultText(place.result).In(language), place.first, place.second});
        for (const DifferenceText& each : place.details) row({}, each);
    }
    text += "\n";
    for (const std::string& hint : report.moved) text += hint + ".\n\n";
    return text + Summary(report, language) + "\n";
}

nlohmann::ordered_json JsonOf(const DifferenceText& text)
{
    nlohmann::ordered_json entry;
    if (!text.group.empty()) entry = {{"group", text.group}, {"channel", text.channel}};
    entry["name"] = text.name;
    entry["first"] = text.value1;
    entry["second"] = text.value2;
    return entry;
}

nlohmann::ordered_json JsonOf(const std::vector<DifferenceText>& texts)
{
    auto list = nlohmann::ordered_json::array();
    for (const DifferenceText& each : texts) list.push_back(JsonOf(each));
    return list;
}

std::string WriteJson(const CompareReport& report)
{
    auto places = nlohmann::ordered_json::array();
    for (const ReportedPlace& place : report.places) {
        nlohmann::ordered_json entry = {{"rack", place.place.rack},
                                        {"place", place.place.place},
                                        {"lastPlace", place.lastPlace},
                                        {"result", ResultId(place.result)}};
        if (!place.first.empty()) entry["first"] = place.first;
        if (!place.second.empty()) entry["second"] = place.second;
        entry["differences"] = JsonOf(place.details);
        places.push_back(std::move(entry));
    }
    const auto side = [&](std::size_t index) {
        return nlohmann::ordered_json{{"file", report.files[index]}, {"name", report.names[index]}};
    };
    const nlohmann::ordered_json whole = {{"same", report.same},         {"first", side(0)},
                                          {"second", side(1)},           {"station", JsonOf(report.station)},
                                          {"places", std::move(places)}, {"moved", report.moved}};
    constexpr int indentation = 2;
    return whole.dump(indentation, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

} // namespace

std::string WriteCompareReport(const CompareReport& report, ReportFormat format, Language language, std::size_t width)
{
    switch (format) {
    case ReportFormat::Json:
        return WriteJson(report);
    case ReportFormat::Markdown:
        return WriteMarkdown(report, language);
    case ReportFormat::Text:
        break;
    }
    return WriteText(report, language, width);
}

} // namespace zqbchwcx::reference
