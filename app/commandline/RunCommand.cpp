#include "app/commandline/RunCommand.h"

#include "app/commandline/Complain.h"
#include "app/commandline/TellErrors.h"
#include "app/export/PartShown.h"
#include "app/host/ShippedData.h"
#include "zqbchwcx/reference/commands/CheckReport.h"
#include "zqbchwcx/reference/commands/Convert.h"
#include "zqbchwcx/reference/commands/ModuleDetails.h"
#include "zqbchwcx/reference/files/AtomicWrite.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/model/rules/CheckStation.h"

#include <QLocale>

#include <algorithm>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

int checkStations(const CommandLine& line, const CommandStreams& streams)
{
    const Catalogue catalogue = ShippedCatalogue();
    int worst = ExitClean;
    for (const std::string& file : line.files) {
        // One bad file must not keep the others from being checked.
        const int result = TellErrors(streams.err, LanguageOf(line), [&] {
            const StationData station = LoadStation(file, catalogue).data;
            const std::string report = WriteCheckReport(CheckStation(station, catalogue), file, LanguageOf(line));
            streams.out << report;
            // Worth knowing, but no rule is broken.
            if (const auto part = PartShown(station))
                streams.out << file << ": larger-than-picture: " << part->In(LanguageOf(line)) << '\n';
            return report.empty() ? ExitClean : ExitBrokenRules;
        });
        worst = std::max(worst, result);
    }
    return worst;
}

int listModules(const CommandLine& line, const CommandStreams& streams)
{
    const Catalogue catalogue = ShippedCatalogue();
    const Language language = LanguageOf(line);
    const StationData station = LoadStation(line.files[0], catalogue).data;
    const std::string list = line.details ? WriteStationDetails(station, catalogue, language)
                                          : WriteModuleList(ListModules(station, catalogue, language),
                                                            line.format.value_or(ListFormat::Plain), language);
    if (line.output.empty()) streams.out << list;
    else AtomicWrite(SystemFiles(), line.output, list);
    return ExitClean;
}

int convertStation(const CommandLine& line)
{
    ConvertStation(line.files[0], line.files[1], ShippedCatalogue(), LanguageOf(line));
    return ExitClean;
}

} // namespace

Language LanguageOf(const CommandLine& line)
{
    const bool isGerman = QLocale::system().language() == QLocale::German;
    return line.language.value_or(isGerman ? Language::German : Language::English);
}

int EndOutput(const CommandStreams& streams, Language language, int exitCode)
{
    if (streams.out.flush()) return exitCode;
    const LocalizedText reason{"standard output cannot be written",
                               "die Standardausgabe kann nicht geschrieben werden"};
    Complain(streams.err, reason.In(language));
    return ExitFile;
}

int RunCommand(const CommandLine& line, const CommandStreams& streams)
{
    return TellErrors(streams.err, LanguageOf(line), [&] {
        switch (line.command) {
        case Command::Check:
            return checkStations(line, streams);
        case Command::List:
            return listModules(line, streams);
        default:
            return convertStation(line);
        }
    });
}

} // namespace quillon_ed
