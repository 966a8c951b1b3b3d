#pragma once

#include "adapters/modbus/ModbusSource.h"
#include "adapters/modbus/SimulatorServer.h"
#include "tests/support/Samples.h"
#include "zqbchwcx/reference/diag/Simulation.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <memory>

namespace zqbchwcx::modbus {

/// So short that a test goes through many of them.
inline constexpr ModbusTimes ShortTimes{std::chrono::milliseconds(2), std::chrono::milliseconds(2000),
                                        std::chrono::milliseconds(300), std::chrono::milliseconds(1),
                                        std::chrono::milliseconds(20)};

/// Lets events come until the condition holds; false when it never does.
template <class Condition>
bool Await(Condition&& condition)
{
    const QDeadlineTimer end(std::chrono::seconds(20));
    QTimer tick;
    tick.start(1);
    while (!condition()) {
        if (end.hasExpired()) return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        // Outside of a running loop nobody else does.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return true;
}

/// A plant of an example, to be read from a port of this computer.
struct LivePlant {
    explicit LivePlant(const reference::StationData& station, std::uint16_t port)
        : plant(std::make_shared<reference::Plant>(reference::RegisterMap(station),
                                                   [this] { return now += std::chrono::milliseconds(1); })),
          source({"127.0.0.1", port, 1}, plant, ShortTimes)
    {
        source.Open();
    }

    reference::ConnectionKind Kind() const { return plant->State().connection.kind; }
    bool Shows(const std::vector<std::uint16_t>& registers) const
    {
        if (!plant->IsKnown()) return false;
        for (std::size_t i = 0; i < registers.size(); ++i)
            if (plant->State().registers[i].value != registers[i]) return false;
        return true;
    }

    reference::Time now{std::chrono::hours(1)};
    reference::PlantPtr plant;
    ModbusSource source;
};

} // namespace zqbchwcx::modbus
