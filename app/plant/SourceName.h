#pragma once

#include "adapters/modbus/ModbusAddress.h"
#include "app/plant/PlantSession.h"

#include <QString>

#include <cstdint>
#include <variant>

namespace quillon_ed {

inline constexpr std::uint16_t DefaultModbusPort = 502;

struct RecordingFile {
    QString fileName;
};
struct SimulatedPlant {
    std::uint32_t seed = 0;
};
/// Where the state of a plant comes from.
using SourceChoice = std::variant<zqbchwcx::modbus::ModbusAddress, RecordingFile, SimulatedPlant>;

/// Reads "modbus-tcp://HOST:PORT[?unit=N]", "recording:FILE" or "simulated:SEED"; or why it is none of these.
std::variant<SourceChoice, zqbchwcx::reference::LocalizedText> ParseSourceName(const QString& name);
QString SourceNameOf(const SourceChoice& choice);

/// How a session makes the source.
PlantSession::MakeSource SourceMaker(const SourceChoice& choice);

} // namespace quillon_ed
