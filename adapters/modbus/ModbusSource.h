#pragma once

#include "adapters/modbus/ModbusAddress.h"
#include "zqbchwcx/reference/diag/DiagSource.h"
#include "zqbchwcx/reference/diag/Plant.h"

#include <QModbusTcpClient>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace zqbchwcx::modbus {

/// How long a source waits for what.
struct ModbusTimes {
    std::chrono::milliseconds poll{500};        ///< between two polls
    std::chrono::milliseconds connection{3000}; ///< for a connection to be made
    std::chrono::milliseconds answer{2000};     ///< for each answer
    std::chrono::milliseconds firstPause{500};  ///< before it connects again; each failure doubles it
    std::chrono::milliseconds longestPause{30000};
};

/// Reads the state of a plant over Modbus TCP, from inside the event loop and without ever waiting in it. A poll reads
/// the head of the register map, and the rest only when the change counter has moved. What goes wrong loses the plant
/// with the reason, and the source connects again by itself. Needs an event loop.
class ModbusSource : public reference::DiagSource {
public:
    ModbusSource(ModbusAddress address, reference::PlantPtr oPlant, ModbusTimes times = {});
    ~ModbusSource() override;
    ModbusSource(const ModbusSource&) = delete;
    ModbusSource& operator=(const ModbusSource&) = delete;

    void Open() override;
    void Close() override;
    void PollNow() override;

private:
    using Taker = std::function<void(std::span<const std::uint16_t> values)>;

    /// Connects, or polls when there is a connection.
    void GoOn();
    void Connect();
    void Disconnect();
    void Fail(reference::ConnectionKind kind, reference::LocalizedText reason);
    /// Asks for registers; the taker gets exactly these.
    void Read(std::size_t first, std::size_t count, Taker taker);
    void OnReply(QModbusReply& reply, std::size_t count, const Taker& taker);
    void ReadHead();
    void TakeHead(std::span<const std::uint16_t> head);
    /// The rest of the registers, block by block, and then tells the plant all of them.
    void ReadRest();

    ModbusAddress moAddress;
    reference::PlantPtr moPlant;
    ModbusTimes moTimes;
    std::chrono::milliseconds mPause;
    bool mbOpen = false;
    std::optional<std::uint16_t> mnChangeCounter; ///< of what was read last; none: everything must be read
    std::vector<std::uint16_t> mcolRead;          ///< the registers that were read so far
    QTimer moNext;                                ///< until the next poll or connection
    QTimer moWaiting;                             ///< for a connection or an answer
    QModbusTcpClient* moClient = nullptr;         ///< owned by the context; null between two connections
    /// Ends everything that is under way. Last, so that nothing answers into what is gone.
    QObject moContext;
};

} // namespace zqbchwcx::modbus
