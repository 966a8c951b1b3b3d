#include "app/commandline/RunDiagnose.h"

#include "adapters/modbus/ModbusSource.h"
#include "app/commandline/Complain.h"
#include "app/commandline/EndBySignal.h"
#include "app/commandline/TellErrors.h"
#include "app/host/ShippedData.h"
#include "app/plant/LocalTime.h"
#include "zqbchwcx/reference/commands/Diagnosis.h"
#include "zqbchwcx/reference/diag/RecordedSource.h"
#include "zqbchwcx/reference/diag/RecordingFile.h"
#include "zqbchwcx/reference/files/StationReader.h"

#include <QCoreApplication>

#include <string_view>

namespace quillon_ed {

using namespace zqbchwcx::reference;
using zqbchwcx::modbus::ModbusAddress;
using zqbchwcx::modbus::ModbusSource;

namespace {

constexpr std::string_view RecordingPrefix = "recording:";

/// A diagnosis that goes on while a source tells the plant.
class Diagnosing {
public:
    Diagnosing(const CommandLine& line, const CommandStreams& streams)
        : moLine(line), moStreams(streams), meLanguage(LanguageOf(line)), moCatalogue(ShippedCatalogue()),
          moStation(LoadStation(line.files[0], moCatalogue).data), moLog(moStation, moCatalogue)
    {
    }

    int PlayRecording(const std::string& fileName)
    {
        Recording recording = LoadRecording(fileName);
        for (const FileError& damage : recording.damages) Complain(moStreams.err, damage.Message(meLanguage));
        const auto time = std::make_shared<RecordedTime>();
        Listen([time] { return time->Now(); });
        RecordedSource source(std::move(recording), moPlant, time);
        source.Open();
        while (!source.IsAtEnd()) source.Step();
        return End();
    }

    int ReadPlant(const ModbusAddress& address)
    {
        Listen(SystemTime);
        ModbusSource source(address, moPlant);
        const EndBySignal ending;
        source.Open();
        if (const int trouble = QCoreApplication::exec()) return trouble;
        return End();
    }

private:
    bool GoesOn() const { return moLine.watch || !moLine.record.empty(); }

    void Listen(Clock clock)
    {
        const Time now = clock();
        moPlant = std::make_shared<Plant>(RegisterMap(moStation), std::move(clock));
        if (!moLine.record.empty()) moRecording.emplace(moLine.record, *moPlant, moStation.name, now);
        moListening = moPlant->Changed.Connect([this](const PlantChange& change) {
            // Nothing may be thrown through the source and the event loop.
            if (const int trouble = TellErrors(moStreams.err, meLanguage, [&] { return Take(change); }))
                QCoreApplication::exit(trouble);
        });
    }

    int Take(const PlantChange& change)
    {
        if (moRecording) moRecording->Write(*moPlant, change);
        if (GoesOn()) {
            for (const PlantLogEntry& entry : moLog.Read(*moPlant, change))
                moStreams.out << WriteLogLine(entry, moLine.format.value_or(ListFormat::Plain), meLanguage);
            // Whoever reads along must not wait for a full buffer.
            return EndOutput(moStreams, meLanguage, ExitClean);
        }
        if (moPlant->State().connection.kind != ConnectionKind::Connecting) QCoreApplication::quit();
        return ExitClean;
    }

    /// Tells what is known at the end; the result is the exit code.
    int End()
    {
        if (!moPlant->IsKnown()) {
            Complain(moStreams.err, moStation.name + ": " + ConnectionText(moPlant->State().connection).In(meLanguage));
            return ExitTrouble;
        }
        const Diagnosis diagnosis = Diagnose(*moPlant, moStation, moCatalogue, meLanguage);
        if (!GoesOn())
            moStreams.out << WriteDiagnosis(diagnosis, moLine.format.value_or(ListFormat::Plain), meLanguage);
        return EndOutput(moStreams, meLanguage, diagnosis.HasFailure() ? ExitFaulty : ExitClean);
    }

    const CommandLine& moLine;
    CommandStreams moStreams;
    Language meLanguage;
    Catalogue moCatalogue;
    StationData moStation;
    PlantLog moLog;
    PlantPtr moPlant;
    std::optional<RecordingFile> moRecording;
    zqbchwcx::EventConnection moListening;
};

int printMap(const CommandLine& line, const CommandStreams& streams)
{
    const Catalogue catalogue = ShippedCatalogue();
    const StationData station = LoadStation(line.files[0], catalogue).data;
    streams.out << WriteRegisterMap(station, catalogue, line.format.value_or(ListFormat::Plain), LanguageOf(line));
    return EndOutput(streams, LanguageOf(line), ExitClean);
}

int diagnose(const CommandLine& line, const CommandStreams& streams)
{
    if (line.map) return printMap(line, streams);
    if (line.source.starts_with(RecordingPrefix))
        return Diagnosing(line, streams).PlayRecording(line.source.substr(RecordingPrefix.size()));
    const auto address = zqbchwcx::modbus::ParseModbusAddress(line.source);
    if (const auto* reason = std::get_if<LocalizedText>(&address)) {
        Complain(streams.err, reason->In(LanguageOf(line)));
        return ExitTrouble;
    }
    return Diagnosing(line, streams).ReadPlant(std::get<ModbusAddress>(address));
}

} // namespace

int RunDiagnose(const CommandLine& line, const CommandStreams& streams)
{
    const int result = TellErrors(streams.err, LanguageOf(line), [&] { return diagnose(line, streams); });
    return result == ExitFile ? ExitTrouble : result;
}

} // namespace quillon_ed
