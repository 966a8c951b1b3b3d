#include "app/commandline/RunSimulate.h"

#include "adapters/modbus/SimulatorServer.h"
#include "app/commandline/Complain.h"
#include "app/commandline/EndBySignal.h"
#include "app/commandline/InputLines.h"
#include "app/commandline/TellErrors.h"
#include "app/host/ShippedData.h"
#include "zqbchwcx/reference/diag/Simulation.h"
#include "zqbchwcx/reference/files/FileSystem.h"
#include "zqbchwcx/reference/files/StationReader.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimer>

namespace quillon_ed {

using namespace zqbchwcx::reference;
using zqbchwcx::modbus::ModbusAddress;
using zqbchwcx::modbus::SimulatorServer;

namespace {

constexpr std::size_t LargestScript = std::size_t{4} << 20;
constexpr std::chrono::milliseconds Tick{20};

void obey(const std::string& text, Simulation& simulation, SimulatorServer& server, const CommandStreams& streams,
          Language language)
{
    if (text.find_first_not_of(" \t\r") == std::string::npos) return;
    if (text == "quit") return QCoreApplication::quit();
    const auto command = ParsePlantCommand(text, simulation.Map());
    if (const auto* reason = std::get_if<LocalizedText>(&command)) return Complain(streams.err, reason->In(language));
    server.Publish(simulation.Apply(std::get<PlantCommand>(command)));
}

int simulate(const CommandLine& line, const CommandStreams& streams)
{
    const Language language = LanguageOf(line);
    const auto parsed = zqbchwcx::modbus::ParseListenAddress(line.listen);
    if (const auto* reason = std::get_if<LocalizedText>(&parsed)) {
        Complain(streams.err, reason->In(language));
        return ExitTrouble;
    }
    const auto& address = std::get<ModbusAddress>(parsed);
    Simulation simulation(LoadStation(line.files[0], ShippedCatalogue()).data);
    if (!line.script.empty())
        simulation.Play(
            ParseScript(ReadFile(SystemFiles(), line.script, LargestScript), line.script, simulation.Map()));
    if (line.seed) simulation.PlayRandomly(*line.seed);

    SimulatorServer server(simulation.Registers());
    if (const auto reason = server.Listen(address)) {
        Complain(streams.err, line.listen + ": " + *reason);
        return ExitTrouble;
    }
    streams.out << LocalizedText{"Listening on ", "Erreichbar unter "}.In(language) << "modbus-tcp://"
                << HostText(address) << ":" << server.Port() << '\n';
    if (const int trouble = EndOutput(streams, language, ExitClean)) return trouble;

    QElapsedTimer elapsed;
    elapsed.start();
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, &tick,
                     [&] { server.Publish(simulation.Advance(std::chrono::milliseconds(elapsed.restart()))); });
    tick.start(Tick);
    const InputLines input([&](const std::string& text) { obey(text, simulation, server, streams, language); });
    const EndBySignal ending;
    return QCoreApplication::exec();
}

} // namespace

int RunSimulate(const CommandLine& line, const CommandStreams& streams)
{
    const int result = TellErrors(streams.err, LanguageOf(line), [&] { return simulate(line, streams); });
    return result == ExitFile ? ExitTrouble : result;
}

} // namespace quillon_ed
