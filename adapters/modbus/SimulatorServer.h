#pragma once

#include "adapters/modbus/ModbusAddress.h"
#include "zqbchwcx/reference/diag/PlantState.h"

#include <QModbusTcpServer>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zqbchwcx::modbus {

/// What one client, and all of them together, may take at most.
struct ServerLimits {
    int connections = 16;
    std::chrono::milliseconds silence{60000};         ///< after that a connection is closed
    std::int64_t unreadBytes = std::int64_t{1} << 18; ///< answers that a client does not fetch
};

/// Shows registers to any Modbus TCP client that reads holding registers; every other function is answered with an
/// exception. Needs an event loop.
class SimulatorServer : public QModbusTcpServer {
    Q_OBJECT

public:
    explicit SimulatorServer(const std::vector<std::uint16_t>& registers, ServerLimits limits = {});
    ~SimulatorServer() override;
    SimulatorServer(const SimulatorServer&) = delete;
    SimulatorServer& operator=(const SimulatorServer&) = delete;

    /// Why it cannot listen there; nothing when it does.
    std::optional<std::string> Listen(const ModbusAddress& address);
    /// 0 while it does not listen.
    std::uint16_t Port() const;
    void Publish(std::span<const reference::RegisterValue> values);

protected:
    QModbusResponse processRequest(const QModbusPdu& request) override;
};

} // namespace zqbchwcx::modbus
