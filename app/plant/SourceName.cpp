#include "app/plant/SourceName.h"

#include "adapters/modbus/ModbusSource.h"
#include "app/host/Strings.h"
#include "app/plant/SimulatedSource.h"
#include "zqbchwcx/reference/diag/RecordedSource.h"
#include "zqbchwcx/reference/diag/Recording.h"

#include <utility>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

const QString RecordingScheme = QStringLiteral("recording:");
const QString SimulatedScheme = QStringLiteral("simulated:");

template <class... Case>
struct Cases : Case... {
    using Case::operator()...;
};

OpenedSource OpenRecording(const QString& fileName, reference::PlantPtr plant)
{
    auto time = std::make_shared<reference::RecordedTime>();
    return {std::make_unique<reference::RecordedSource>(reference::LoadRecording(fileName.toStdString()),
                                                        std::move(plant), time),
            [time] { return time->Now(); }};
}

OpenedSource OpenSimulation(std::uint32_t seed, const reference::StationData& station, reference::PlantPtr plant)
{
    reference::Simulation simulation(station);
    simulation.PlayRandomly(seed);
    return {std::make_unique<SimulatedSource>(std::move(simulation), std::move(plant)), {}};
}

} // namespace

std::variant<SourceChoice, reference::LocalizedText> ParseSourceName(const QString& name)
{
    if (name.startsWith(RecordingScheme)) {
        const QString file = name.mid(RecordingScheme.size());
        if (file.isEmpty())
            return reference::LocalizedText{"A recording needs the name of its file.",
                                            "Eine Aufzeichnung braucht den Namen ihrer Datei."};
        return RecordingFile{file};
    }
    if (name.startsWith(SimulatedScheme)) {
        bool isNumber = false;
        const uint seed = name.mid(SimulatedScheme.size()).toUInt(&isNumber);
        if (!isNumber)
            return reference::LocalizedText{"The seed of a simulated plant is a number.",
                                            "Der Startwert einer simulierten Anlage ist eine Zahl."};
        return SimulatedPlant{seed};
    }
    auto address = modbus::ParseModbusAddress(name.toStdString());
    if (const auto* found = std::get_if<modbus::ModbusAddress>(&address)) return *found;
    return std::get<reference::LocalizedText>(address);
}

QString SourceNameOf(const SourceChoice& choice)
{
    return std::visit(Cases{[](const modbus::ModbusAddress& address) {
                                QString name =
                                    QStringLiteral("%1://%2:%3")
                                        .arg(ToQString(modbus::ModbusScheme), QString::fromStdString(address.host))
                                        .arg(address.port);
                                if (address.unit != 1) name += QStringLiteral("?unit=%1").arg(address.unit);
                                return name;
                            },
                            [](const RecordingFile& recording) { return RecordingScheme + recording.fileName; },
                            [](const SimulatedPlant& plant) { return SimulatedScheme + QString::number(plant.seed); }},
                      choice);
}

PlantSession::MakeSource SourceMaker(const SourceChoice& choice)
{
    return [choice](const reference::StationData& station, reference::PlantPtr plant) {
        return std::visit(
            Cases{[&](const modbus::ModbusAddress& address) {
                      return OpenedSource{std::make_unique<modbus::ModbusSource>(address, plant), {}};
                  },
                  [&](const RecordingFile& recording) { return OpenRecording(recording.fileName, plant); },
                  [&](const SimulatedPlant& plantToSimulate) {
                      return OpenSimulation(plantToSimulate.seed, station, plant);
                  }},
            choice);
    };
}

} // namespace quillon_ed
