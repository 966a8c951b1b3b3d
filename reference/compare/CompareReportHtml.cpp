#include "zqbchwcx/reference/compare/CompareReportHtml.h"

#include "zqbchwcx/reference/commands/TerminalLine.h"

#include <string_view>

namespace zqbchwcx::reference {
namespace {

/// On a phone, every cell says whose value it is, because the heading is not beside it. Paper is always light.
constexpr std::string_view Style = R"(
:root { color-scheme: light dark; --ink: #1b1b1b; --ground: #ffffff; --line: #b9b9b9; --head: #eceff1; --mark: #ffeed6; }
@media (prefers-color-scheme: dark) {
  :root { --ink: #ececec; --ground: #1d1f21; --line: #5a5d60; --head: #2c3033; --mark: #4a3920; }
}
@media print {
  :root { color-scheme: light; --ink: #000000; --ground: #ffffff; --line: #888888; --head: #eeeeee; --mark: #f5e6cf; }
  tr, figure { break-inside: avoid; }
  thead { display: table-header-group; }
}
* { box-sizing: border-box; }
body { margin: 0 auto; padding: 1rem; max-width: 72rem; font: 1rem/1.45 sans-serif; color: var(--ink);
  background: var(--ground); overflow-wrap: anywhere; }
h1 { font-size: 1.4rem; margin: 0 0 .5rem; }
.summary { font-weight: bold; }
.stations { display: flex; flex-wrap: wrap; gap: 1rem; }
figure { margin: 0; flex: 1 1 17rem; min-width: 0; }
figcaption { margin-bottom: .4rem; }
figcaption small { display: block; }
img { max-width: 100%; height: auto; background: #ffffff; border: 1px solid var(--line); }
table { width: 100%; table-layout: fixed; border-collapse: collapse; margin-top: 1rem; }
thead th:nth-child(1) { width: 18%; }
thead th:nth-child(2) { width: 24%; }
th, td { border: 1px solid var(--line); padding: .3rem .5rem; text-align: left; vertical-align: top; }
thead th { background: var(--head); }
tr.place { background: var(--mark); }
@media screen and (max-width: 40rem) {
  thead { position: absolute; left: -100vw; }
  tbody, tr, th, td { display: block; width: 100%; }
  th, td { border-width: 0 1px; }
  tr { border: solid var(--line); border-width: 1px 0; margin-bottom: .4rem; }
  td:empty, th:empty { display: none; }
  td[data-side]::before { content: attr(data-side) ": "; font-weight: bold; }
}
)";

std::string Escaped(std::string_view text)
{
    std::string escaped;
    for (const char character : TerminalLine(text)) {
        switch (character) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        case '\'':
            escaped += "&#39;";
            break;
        default:
            escaped += character;
        }
    }
    return escaped;
}

class HtmlWriter {
public:
    HtmlWriter(const CompareReport& report, Language language) : mReport(report), meLanguage(language) {}

    std::string Write(const std::array<std::string, 2>& pictures) &&
    {
        const std::string title = Word({"Comparison of two stations", "Vergleich zweier Stationen"});
        msHtml = "<!DOCTYPE html>\n<html lang=\"" + Word({"en", "de"}) + "\">\n<head>\n<meta charset=\"utf-8\">\n" +
                 R"(<meta name="viewport" content="width=device-width, initial-scale=1">
<meta http-equiv="Content-Security-Policy" content="default-src 'none'; style-src 'unsafe-inline'; img-src data:">
)" + "<title>" + title +
                 "</title>\n<style>" + std::string(Style) + "</style>\n</head>\n<body>\n<h1>" + title + "</h1>\n";
        msHtml += "<p class=\"summary\">" + Escaped(Summary(mReport, meLanguage)) + "</p>\n";
        for (const std::string& hint : mReport.moved) msHtml += "<p class=\"moved\">" + Escaped(hint) + ".</p>\n";
        msHtml += "<div class=\"stations\">\n";
        for (std::size_t side = 0; side < pictures.size(); ++side) Station(side, pictures.at(side));
        msHtml += "</div>\n";
        if (!mReport.same) Table();
        return std::move(msHtml) + "</body>\n</html>\n";
    }

private:
    std::string Word(const LocalizedText& word) const { return word.In(meLanguage); }
    std::string SideName(std::size_t side) const
    {
        return side == 0 ? Word({"First station", "Erste Station"}) : Word({"Second station", "Zweite Station"});
    }

    void Station(std::size_t side, const std::string& picture)
    {
        msHtml += "<figure>\n<figcaption>" + SideName(side) + ": <strong>" + Escaped(mReport.names.at(side)) +
                  "</strong><small>" + Escaped(mReport.files.at(side)) + "</small></figcaption>\n";
        if (!picture.empty())
            msHtml += "<img alt=\"" + Word({"The racks of the station", "Die Träger der Station"}) + "\" src=\"" +
                      Escaped(picture) + "\">\n";
        msHtml += "</figure>\n";
    }

    void Table()
    {
        msHtml += "<table>\n<thead><tr>";
        for (const std::string& heading :
             {Word({"Place", "Platz"}), Word({"Difference", "Unterschied"}), SideName(0), SideName(1)})
            msHtml += "<th scope=\"col\">" + heading + "</th>";
        msHtml += "</tr></thead>\n<tbody>\n";
        for (const DifferenceText& each : mReport.station) Row("", {}, FullName(each), each.value1, each.value2);
        for (const ReportedPlace& place : mReport.places) {
            Row(" class=\"place\"", PlacesText(place, meLanguage), ResultText(place.result).In(meLanguage), place.first,
                place.second);
            for (const DifferenceText& each : place.details) Row("", {}, FullName(each), each.value1, each.value2);
        }
        msHtml += "</tbody>\n</table>\n";
    }

    void Row(const char* attributes, const std::string& place, const std::string& what, const std::string& first,
             const std::string& second)
    {
        msHtml += "<tr" + std::string(attributes) + "><th scope=\"row\">" + Escaped(place) + "</th><td>" +
                  Escaped(what) + "</td>" + Value(0, first) + Value(1, second) + "</tr>\n";
    }

    std::string Value(std::size_t side, const std::string& value) const
    {
        if (value.empty()) return "<td></td>";
        return "<td data-side=\"" + SideName(side) + "\">" + Escaped(value) + "</td>";
    }

    const CompareReport& mReport;
    Language meLanguage;
    std::string msHtml;
};

} // namespace

std::string WriteHtmlReport(const CompareReport& report, const std::array<std::string, 2>& pictures, Language language)
{
    return HtmlWriter(report, language).Write(pictures);
}

} // namespace zqbchwcx::reference
