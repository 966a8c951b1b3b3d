#include "adapters/modbus/SimulatorServer.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <QVariant>

#include <memory>

namespace zqbchwcx::modbus {

namespace {

constexpr qint64 ReadBuffer = 4096; // bytes; a request has 12

/// Not at once: the server itself may be about to read from it.
void CloseSoon(QTcpSocket* client)
{
    QTimer::singleShot(0, client, [client] { client->abort(); });
}

/// Lets clients in as far as the limits go, and closes the connection of one that goes beyond its own.
class Doorkeeper : public QModbusTcpConnectionObserver {
public:
    explicit Doorkeeper(ServerLimits limits) : moLimits(limits) {}

    bool acceptNewConnection(QTcpSocket* client) override
    {
        const bool isOneTooMany = *mlConnections >= moLimits.connections;
        ++*mlConnections;
        // Sockets may outlive this object.
        QObject::connect(client, &QObject::destroyed, client, [count = mlConnections] { --*count; });
        client->setReadBufferSize(ReadBuffer);
        // To refuse it here would leak the buffer that the server has made for it.
        if (isOneTooMany) CloseSoon(client);

        auto* silence = new QTimer(client);
        silence->setInterval(moLimits.silence);
        QObject::connect(silence, &QTimer::timeout, client, [client] { client->abort(); });
        silence->start();
        QObject::connect(client, &QTcpSocket::readyRead, client, [client, silence, most = moLimits.unreadBytes] {
            silence->start();
            if (client->bytesToWrite() > most) CloseSoon(client);
        });
        return true;
    }

private:
    ServerLimits moLimits;
    std::shared_ptr<int> mlConnections = std::make_shared<int>(0);
};

} // namespace

SimulatorServer::SimulatorServer(const std::vector<std::uint16_t>& registers, ServerLimits limits)
{
    setMap({{QModbusDataUnit::HoldingRegisters,
             {QModbusDataUnit::HoldingRegisters, 0, static_cast<quint16>(registers.size())}}});
    setData({QModbusDataUnit::HoldingRegisters, 0, QList<quint16>(registers.begin(), registers.end())});
    installConnectionObserver(new Doorkeeper(limits));
}

SimulatorServer::~SimulatorServer()
{
    // While the server still is one, so that what it keeps for each of them goes, too.
    qDeleteAll(findChildren<QTcpSocket*>());
}

std::optional<std::string> SimulatorServer::Listen(const ModbusAddress& address)
{
    setConnectionParameter(NetworkAddressParameter, QString::fromStdString(HostText(address)));
    setConnectionParameter(NetworkPortParameter, address.port);
    setServerAddress(address.unit);
    if (connectDevice()) return {};
    return errorString().toStdString();
}

std::uint16_t SimulatorServer::Port() const
{
    const auto* server = findChild<QTcpServer*>();
    return server ? server->serverPort() : std::uint16_t{0};
}

void SimulatorServer::Publish(std::span<const reference::RegisterValue> values)
{
    for (const reference::RegisterValue& value : values)
        setData(QModbusDataUnit::HoldingRegisters, static_cast<quint16>(value.address), value.value);
}

QModbusResponse SimulatorServer::processRequest(const QModbusPdu& request)
{
    if (request.functionCode() == QModbusPdu::ReadHoldingRegisters) return QModbusTcpServer::processRequest(request);
    return QModbusExceptionResponse(request.functionCode(), QModbusExceptionResponse::IllegalFunction);
}

} // namespace zqbchwcx::modbus
