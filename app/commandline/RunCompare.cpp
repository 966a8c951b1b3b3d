#include "app/commandline/RunCompare.h"

#include "app/commandline/TellErrors.h"
#include "app/commandline/TerminalWidth.h"
#include "app/document/GitRevisions.h"
#include "app/export/ExportViews.h"
#include "app/host/AppServices.h"
#include "app/host/PlainText.h"
#include "app/host/ShippedData.h"
#include "app/host/UserSettings.h"
#include "zqbchwcx/reference/compare/CompareReportHtml.h"
#include "zqbchwcx/reference/compare/CompareReportText.h"
#include "zqbchwcx/reference/files/AtomicWrite.h"
#include "zqbchwcx/reference/files/StationReader.h"

#include <iostream>
#include <iterator>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

/// One of the two stations, and what the report calls it.
struct Side {
    std::string name;
    StationData data;
};

std::string ReadStandardInput()
{
    std::string text;
    for (char byte = 0; text.size() <= LargestStationFile && std::cin.get(byte);) text += byte;
    return text;
}

Side ReadSide(const std::string& file, const Catalogue& catalogue)
{
    if (file != "-") return {file, LoadStation(file, catalogue).data};
    const std::string text = ReadStandardInput();
    if (text.size() > LargestStationFile)
        throw FileError(file, {}, "standard input is longer than any station file",
                        "die Standardeingabe ist länger als jede Stationsdatei");
    return {file, ParseStation(text, file, catalogue)};
}

Side ReadRevision(const std::string& file, const std::string& name, const Catalogue& catalogue)
{
    GitRevisions revisions;
    const std::string title = file + "@" + name;
    const std::string text = revisions.Content(file, revisions.Find(file, name));
    return {title, ParseStation(text, title, catalogue)};
}

ReportFormat FormatOf(const CommandLine& line)
{
    switch (line.format.value_or(ListFormat::Plain)) {
    case ListFormat::Json:
        return ReportFormat::Json;
    case ListFormat::Markdown:
        return ReportFormat::Markdown;
    default:
        return ReportFormat::Text;
    }
}

std::string HtmlOf(const CompareReport& report, const Side& first, const Side& second, Language language)
{
    UserSettings settings;
    AppServices services(settings.Settings());
    services.ShowLanguage(language);
    const auto picture = [&](const Side& side) {
        const QByteArray svg =
            SvgPictureOf(std::make_shared<Station>(services.Context(), side.data), {}, PlainText(side.data.name));
        return "data:image/svg+xml;base64," + svg.toBase64().toStdString();
    };
    return WriteHtmlReport(report, {picture(first), picture(second)}, language);
}

int Compare(const CommandLine& line, const CommandStreams& streams)
{
    const Catalogue catalogue = ShippedCatalogue();
    const Language language = LanguageOf(line);
    const std::string& file = line.files[0];
    const Side first = line.revision.empty() ? ReadSide(file, catalogue) : ReadRevision(file, line.revision, catalogue);
    const Side second = ReadSide(line.files.back(), catalogue);
    const CompareReport report =
        ReportOf(first.data, second.data, {first.name, second.name}, catalogue, line.ignored, language);
    if (!line.html.empty()) AtomicWrite(SystemFiles(), line.html, HtmlOf(report, first, second, language));
    else streams.out << WriteCompareReport(report, FormatOf(line), language, TerminalWidth());
    return EndOutput(streams, language, report.same ? ExitClean : ExitDifferent);
}

} // namespace

int RunCompare(const CommandLine& line, const CommandStreams& streams)
{
    const int code = TellErrors(streams.err, LanguageOf(line), [&] { return Compare(line, streams); });
    return code == ExitFile ? ExitTrouble : code;
}

} // namespace quillon_ed
