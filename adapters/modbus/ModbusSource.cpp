#include "adapters/modbus/ModbusSource.h"

#include <QIODevice>
#include <QModbusReply>
#include <QVariant>

#include <algorithm>
#include <utility>

namespace zqbchwcx::modbus {

using namespace reference;

namespace {

constexpr std::size_t LargestBlock = 125; // registers that one answer can hold

LocalizedText WithDetail(LocalizedText text, const QString& detail)
{
    if (detail.isEmpty()) return text;
    return {text.en + " (" + detail.toStdString() + ")", text.de + " (" + detail.toStdString() + ")"};
}

LocalizedText LostText(const QModbusDevice& client)
{
    const QIODevice* socket = client.device();
    return WithDetail({"the connection was refused or lost", "die Verbindung wurde abgelehnt oder ging verloren"},
                      socket ? socket->errorString() : QString());
}

LocalizedText TimeoutText(bool isConnected, std::chrono::milliseconds time)
{
    const std::string text = std::to_string(time.count()) + " ms";
    if (!isConnected) return {"no connection within " + text, "keine Verbindung innerhalb von " + text};
    return {"no answer within " + text, "keine Antwort innerhalb von " + text};
}

LocalizedText ErrorText(const QModbusReply& reply)
{
    if (reply.error() != QModbusDevice::ProtocolError)
        return WithDetail({"the answer cannot be read", "die Antwort ist nicht lesbar"}, reply.errorString());
    // A response of a device may hold a code that is no value of the library's enumeration; its bytes always can be
    // read.
    const QByteArray data = reply.rawResult().data();
    const std::string code = data.isEmpty() ? "?" : std::to_string(static_cast<unsigned char>(data[0]));
    return {"the device answered with the exception " + code, "das Gerät antwortete mit der Ausnahme " + code};
}

} // namespace

ModbusSource::ModbusSource(ModbusAddress address, PlantPtr oPlant, ModbusTimes times)
    : moAddress(std::move(address)), moPlant(std::move(oPlant)), moTimes(times), mPause(times.firstPause)
{
    moNext.setSingleShot(true);
    moWaiting.setSingleShot(true);
    QObject::connect(&moNext, &QTimer::timeout, &moContext, [this] { GoOn(); });
    QObject::connect(&moWaiting, &QTimer::timeout, &moContext, [this] {
        const bool isConnected = moClient->state() == QModbusDevice::ConnectedState;
        Fail(ConnectionKind::NotReachable, TimeoutText(isConnected, moWaiting.intervalAsDuration()));
    });
}

ModbusSource::~ModbusSource()
{
    Disconnect();
}

void ModbusSource::Open()
{
    if (mbOpen) return;
    mbOpen = true;
    mPause = moTimes.firstPause;
    moNext.start(0);
    moPlant->Lose(ConnectionKind::Connecting);
}

void ModbusSource::Close()
{
    mbOpen = false;
    Disconnect();
    moPlant->Lose(ConnectionKind::Closed);
}

void ModbusSource::PollNow()
{
    if (!mbOpen) return;
    mnChangeCounter.reset();
    if (!moClient) mPause = moTimes.firstPause;
    if (!moWaiting.isActive()) moNext.start(0);
}

void ModbusSource::GoOn()
{
    if (moClient) ReadHead();
    else Connect();
}

void ModbusSource::Connect()
{
    mnChangeCounter.reset();
    moClient = new QModbusTcpClient(&moContext);
    moClient->setConnectionParameter(QModbusDevice::NetworkAddressParameter,
                                     QString::fromStdString(HostText(moAddress)));
    moClient->setConnectionParameter(QModbusDevice::NetworkPortParameter, moAddress.port);
    moClient->setNumberOfRetries(0);
    QObject::connect(moClient, &QModbusDevice::stateChanged, &moContext, [this](QModbusDevice::State state) {
        if (state == QModbusDevice::ConnectedState) ReadHead();
        else if (state == QModbusDevice::UnconnectedState) Fail(ConnectionKind::NotReachable, LostText(*moClient));
    });
    QObject::connect(moClient, &QModbusDevice::errorOccurred, &moContext, [this](QModbusDevice::Error error) {
        if (error == QModbusDevice::ConnectionError) Fail(ConnectionKind::NotReachable, LostText(*moClient));
    });
    moWaiting.start(moTimes.connection);
    QModbusTcpClient& client = *moClient;
    if (!client.connectDevice() && moClient == &client) Fail(ConnectionKind::NotReachable, LostText(client));
}

void ModbusSource::Disconnect()
{
    moNext.stop();
    moWaiting.stop();
    QModbusTcpClient* client = std::exchange(moClient, nullptr);
    if (!client) return;
    client->disconnect(&moContext);
    client->disconnectDevice();
    // It may be the one that tells of the failure just now.
    client->deleteLater();
}

void ModbusSource::Fail(ConnectionKind kind, LocalizedText reason)
{
    Disconnect();
    moNext.start(mPause);
    mPause = std::min(2 * mPause, moTimes.longestPause);
    moPlant->Lose(kind, std::move(reason));
}

void ModbusSource::Read(std::size_t first, std::size_t count, Taker taker)
{
    // Its own timer: that of the client stops at the first byte of an answer that never ends.
    moWaiting.start(moTimes.answer);
    QModbusTcpClient* client = moClient;
    const QModbusDataUnit unit(QModbusDataUnit::HoldingRegisters, static_cast<int>(first), static_cast<quint16>(count));
    QModbusReply* reply = client->sendReadRequest(unit, moAddress.unit);
    if (!reply) {
        if (client == moClient) Fail(ConnectionKind::NotReachable, LostText(*client));
        return;
    }
    QObject::connect(reply, &QModbusReply::finished, &moContext,
                     [this, client, reply, count, taker = std::move(taker)] {
                         reply->deleteLater();
                         // An answer that comes when nobody waits for it any more.
                         if (client != moClient) return;
                         OnReply(*reply, count, taker);
                     });
}

void ModbusSource::OnReply(QModbusReply& reply, std::size_t count, const Taker& taker)
{
    moWaiting.stop();
    switch (reply.error()) {
    case QModbusDevice::NoError:
        break;
    case QModbusDevice::ConnectionError:
    case QModbusDevice::ReplyAbortedError:
        return Fail(ConnectionKind::NotReachable, LostText(*moClient));
    default:
        return Fail(ConnectionKind::WrongAnswer, ErrorText(reply));
    }
    const QList<quint16> values = reply.result().values();
    if (static_cast<std::size_t>(values.size()) != count) {
        const std::string many = std::to_string(values.size()) + "/" + std::to_string(count);
        return Fail(ConnectionKind::WrongAnswer, {"the answer has another number of registers: " + many,
                                                  "die Antwort hat eine andere Anzahl von Registern: " + many});
    }
    taker({values.constData(), count});
}

void ModbusSource::ReadHead()
{
    Read(0, MapHead::FirstItem, [this](std::span<const std::uint16_t> head) { TakeHead(head); });
}

void ModbusSource::TakeHead(std::span<const std::uint16_t> head)
{
    if (auto objection = moPlant->Map().Against(head))
        return Fail(objection->isOtherStation ? ConnectionKind::OtherStation : ConnectionKind::WrongAnswer,
                    std::move(objection->reason));
    if (mnChangeCounter == head[MapHead::ChangeCounter]) {
        moNext.start(moTimes.poll);
        return;
    }
    // What changes while the rest is read moves the counter on, and is read with the next poll.
    mnChangeCounter = head[MapHead::ChangeCounter];
    mcolRead.assign(head.begin(), head.end());
    ReadRest();
}

void ModbusSource::ReadRest()
{
    const std::size_t missing = moPlant->Map().RegisterCount() - mcolRead.size();
    if (missing == 0) {
        mPause = moTimes.firstPause;
        moNext.start(moTimes.poll);
        moPlant->Take(0, mcolRead);
        return;
    }
    Read(mcolRead.size(), std::min(missing, LargestBlock), [this](std::span<const std::uint16_t> values) {
        mcolRead.insert(mcolRead.end(), values.begin(), values.end());
        ReadRest();
    });
}

} // namespace zqbchwcx::modbus
