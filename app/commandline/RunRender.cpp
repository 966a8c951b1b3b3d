#include "app/commandline/RunRender.h"

#include "app/commandline/Complain.h"
#include "app/commandline/RunCommand.h"
#include "app/commandline/TellErrors.h"
#include "app/export/ExportViews.h"
#include "app/export/PartShown.h"
#include "app/host/AppServices.h"
#include "app/host/PlainText.h"
#include "app/host/Strings.h"
#include "app/host/UserSettings.h"
#include "app/plant/SourceName.h"
#include "zqbchwcx/reference/diag/RecordedSource.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <QApplication>
#include <QEventLoop>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

/// What the library reports while it draws is no reason to stop, but must not be lost either.
void tellReports(const ErrorLog& log, std::ostream& err)
{
    for (const ErrorEntry& entry : log.Entries()) Complain(err, entry.source + ": " + entry.description);
}

/// Waits until the source has told the plant, or why it cannot, which is told and drawn then.
void readPlant(PlantSession& plant, const StationData& data, const CommandLine& line, std::ostream& err)
{
    const auto name = ParseSourceName(ToQString(line.source));
    const auto* choice = std::get_if<SourceChoice>(&name);
    if (!choice) throw FileError(line.source, {}, std::get<LocalizedText>(name).en, std::get<LocalizedText>(name).de);
    plant.Fit(data);
    QEventLoop waiting;
    const auto connection = plant.Changed.Connect([&](const PlantChange&) {
        if (plant.Plant()->State().connection.kind != ConnectionKind::Connecting) waiting.quit();
    });
    plant.Connect(ToQString(line.source), SourceMaker(*choice));
    if (auto* recording = dynamic_cast<RecordedSource*>(plant.Source())) {
        for (const FileError& damage : recording->Damages()) Complain(err, damage.Message(LanguageOf(line)));
        while (!recording->IsAtEnd()) recording->Step();
    } else if (!plant.Plant()->IsKnown()) {
        waiting.exec();
    }
    if (!plant.Plant()->IsKnown())
        Complain(err, line.source + ": " + ConnectionText(plant.Plant()->State().connection).In(LanguageOf(line)));
}

} // namespace

int RunRender(const CommandLine& line, const CommandStreams& streams)
{
    return TellErrors(streams.err, LanguageOf(line), [&] {
        UserSettings settings;
        // The desktop's colours are left alone: the same station gives the same picture everywhere.
        QApplication::setPalette(PaletteOf(line.colors.value_or(Colors::Light)));
        AppServices services(settings.Settings());
        services.ShowLanguage(LanguageOf(line));
        if (settings.Refused()) Complain(streams.err, settings.Refused()->Message(LanguageOf(line)));

        const std::string& file = line.files[0];
        StationData data = LoadStation(file, services.Catalogue()).data;
        PictureContent content{line.view, line.rack.value_or(0)};
        PlantSession plant(services.Context()->catalogue);
        if (line.diagnostics) {
            readPlant(plant, data, line, streams.err);
            content.diagnostics = plant.Service();
        }
        if (const auto reason = AgainstContent(data, content)) {
            Complain(streams.err, file + ": " + reason->In(LanguageOf(line)));
            return ExitUsage;
        }
        if (const auto part = PartShown(data, content)) Complain(streams.err, file + ": " + part->In(LanguageOf(line)));
        const PageHeader header{PlainText(data.name), QDate::currentDate(),
                                QLocale(LanguageOf(line) == Language::German ? QLocale::German : QLocale::English)};
        ExportViews(std::make_shared<Station>(services.Context(), std::move(data)), content, header, line.scale,
                    ToQString(line.output));
        tellReports(services.Errors(), streams.err);
        return ExitClean;
    });
}

} // namespace quillon_ed
