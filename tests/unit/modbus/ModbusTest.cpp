#include "tests/unit/modbus/ModbusStage.h"

#include <gmock/gmock.h>

#include <QTcpServer>
#include <QTcpSocket>

namespace zqbchwcx::modbus {
namespace {

using namespace reference;
using namespace std::chrono_literals;

TEST(ModbusAddress, IsReadStrictly)
{
    const std::pair<const char*, ModbusAddress> right[] = {
        {"modbus-tcp://10.0.0.7:502", {"10.0.0.7", 502, 1}},
        {"modbus-tcp://plc-3.local:1502?unit=17", {"plc-3.local", 1502, 17}},
        {"modbus-tcp://[::1]:502?unit=0", {"::1", 502, 0}},
    };
    for (const auto& [text, address] : right) EXPECT_EQ(std::get<0>(ParseModbusAddress(text)), address) << text;
    EXPECT_EQ(HostText(right[2].second), "[::1]");
    for (const char* wrong : {"", "10.0.0.7:502", "modbus-tcp://10.0.0.7", "modbus-tcp://:502", "http://a:502",
                              "modbus-tcp://a:0", "modbus-tcp://a:70000", "modbus-tcp://a:502/x",
                              "modbus-tcp://a:502?unit=256", "modbus-tcp://a:502?slave=1", "modbus-tcp://me@a:502"})
        EXPECT_EQ(ParseModbusAddress(wrong).index(), 1U) << wrong;
    EXPECT_EQ(std::get<0>(ParseListenAddress("localhost:0")), (ModbusAddress{"127.0.0.1", 0, 1}));
    for (const char* wrong : {"", "5020", "somewhere:5020", "127.0.0.1", "127.0.0.1:502?unit=3"})
        EXPECT_EQ(ParseListenAddress(wrong).index(), 1U) << wrong;
}

/// A simulated plant with a server in front of it.
struct Simulated {
    explicit Simulated(const char* example = "packaging-line", ServerLimits limits = {})
        : station(ExampleStation(example)), simulation(station), server(simulation.Registers(), limits)
    {
        EXPECT_FALSE(server.Listen({"127.0.0.1", 0, 1}));
    }

    void Cut()
    {
        for (QTcpSocket* socket : server.findChildren<QTcpSocket*>()) socket->abort();
    }

    StationData station;
    Simulation simulation;
    SimulatorServer server;
};

TEST(ModbusSource, LosesNoChangeHoweverOftenTheConnectionIsLost)
{
    Simulated simulated;
    simulated.simulation.PlayRandomly(3);
    LivePlant live(simulated.station, simulated.server.Port());
    std::size_t losses = 0;
    const auto counting = live.plant->Changed.Connect([&](const PlantChange& change) {
        if (change.connection && !live.plant->IsKnown()) ++losses;
    });
    for (int i = 0; i < 3000; ++i) {
        const auto changes = simulated.simulation.Advance(2s);
        simulated.server.Publish(changes);
        if (i % 3 == 1) simulated.Cut();
        if (i % 20 == 19) live.source.PollNow();
        ASSERT_TRUE(Await([&] { return live.Shows(simulated.simulation.Registers()); }))
            << i << ConnectionText(live.plant->State().connection).en;
    }
    EXPECT_GE(losses, 900U);
    EXPECT_LE(simulated.server.findChildren<QTcpSocket*>().size(), 1);

    simulated.server.disconnectDevice();
    simulated.Cut();
    ASSERT_TRUE(Await([&] { return live.Kind() == ConnectionKind::NotReachable; }));
    const Time lost = live.plant->State().connection.since;
    ASSERT_TRUE(Await([&] { return live.now > lost + 3ms; })) << "it tries again";
    EXPECT_EQ(live.plant->State().connection.since, lost);
    EXPECT_FALSE(live.plant->At({{0, 1}, 0}));
    live.source.Close();
    EXPECT_EQ(live.Kind(), ConnectionKind::Closed);
}

TEST(ModbusSource, RefusesThePlantOfAnotherStation)
{
    Simulated simulated("waterworks");
    LivePlant live(ExampleStation("packaging-line"), simulated.server.Port());
    EXPECT_TRUE(Await([&] { return live.Kind() == ConnectionKind::OtherStation; }));
}

/// Answers each request with what a function makes of it.
class ScriptedPeer : public QTcpServer {
public:
    explicit ScriptedPeer(std::function<QByteArray(const QByteArray& request)> answer) : mAnswer(std::move(answer))
    {
        listen(QHostAddress::LocalHost);
        QObject::connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* socket = nextPendingConnection();
            QObject::connect(socket, &QTcpSocket::readyRead, socket,
                             [this, socket] { socket->write(mAnswer(socket->readAll())); });
        });
    }

private:
    std::function<QByteArray(const QByteArray&)> mAnswer;
};

/// The request's head (transaction, protocol, length, unit) before another PDU.
QByteArray Framed(const QByteArray& request, const QByteArray& pdu)
{
    QByteArray head = request.left(4);
    head.append('\0').append(static_cast<char>(pdu.size() + 1));
    return head + request.mid(6, 1) + pdu;
}

TEST(ModbusSource, TellsWhatIsWrongWithAnAnswerAndTriesAgain)
{
    const QByteArray whole = QByteArray("\x03\x60") + QByteArray(96, '\0');
    struct Case {
        const char* name;
        std::function<QByteArray(const QByteArray&)> answer;
        ConnectionKind kind;
        const char* reason;
    };
    const Case cases[] = {
        {"silence", [](const QByteArray&) { return QByteArray(); }, ConnectionKind::NotReachable, "no answer within"},
        {"exception", [](const QByteArray& request) { return Framed(request, "\x83\x02"); },
         ConnectionKind::WrongAnswer, "exception 2"},
        {"too few registers", [](const QByteArray& request) { return Framed(request, QByteArray("\x03\x02\0\1", 4)); },
         ConnectionKind::WrongAnswer, "1/48"},
        {"cut off", [&](const QByteArray& request) { return Framed(request, whole).left(20); },
         ConnectionKind::NotReachable, "no answer within"},
        {"count and bytes differ", [&](const QByteArray& request) { return Framed(request, whole.left(30)); },
         ConnectionKind::WrongAnswer, "cannot be read"},
        {"another function", [](const QByteArray& request) { return Framed(request, QByteArray("\x01\x01\0", 3)); },
         ConnectionKind::WrongAnswer, ""},
        {"another transaction", [&](QByteArray request) { return request[1] = '\x77', Framed(request, whole); },
         ConnectionKind::NotReachable, "no answer within"},
        {"zeros", [&](const QByteArray& request) { return Framed(request, whole); }, ConnectionKind::WrongAnswer,
         "no register map"},
        {"garbage", [](const QByteArray&) { return QByteArray(3000, '\xA7'); }, ConnectionKind::NotReachable, ""},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        int requests = 0;
        ScriptedPeer peer([&](const QByteArray& request) { return ++requests, one.answer(request); });
        LivePlant live(ExampleStation("packaging-line"), peer.serverPort());
        ASSERT_TRUE(Await([&] { return requests >= 2 && live.Kind() == one.kind; }))
            << ConnectionText(live.plant->State().connection).en;
        EXPECT_THAT(live.plant->State().connection.reason.en, ::testing::HasSubstr(one.reason));
        EXPECT_FALSE(live.plant->IsKnown());
    }
}

/// A client without manners.
struct RawClient {
    explicit RawClient(const SimulatorServer& server) { socket.connectToHost(QHostAddress::LocalHost, server.Port()); }
    bool IsClosed() const { return socket.state() == QAbstractSocket::UnconnectedState; }

    QTcpSocket socket;
};

QByteArray Request(const QByteArray& pdu)
{
    return QByteArray("\0\1\0\0\0", 5) + static_cast<char>(pdu.size() + 1) + '\1' + pdu;
}

TEST(SimulatorServer, IsHarmedByNobody)
{
    Simulated simulated("packaging-line", {6, 400ms, 1 << 16});
    LivePlant live(simulated.station, simulated.server.Port());
    const auto isWell = [&] {
        simulated.server.Publish(simulated.simulation.Apply(
            {{*simulated.simulation.Map().RegisterOf({{0, 1}, 0}),
              static_cast<std::uint16_t>(simulated.simulation.Registers()[MapHead::ChangeCounter] + 1)}}));
        return Await([&] { return live.Shows(simulated.simulation.Registers()); });
    };
    ASSERT_TRUE(isWell());

    RawClient writer(simulated.server);
    // Writing, other tables, diagnostics, a function that there is not.
    for (const QByteArray& pdu : {QByteArray("\x06\0\x30\0\1", 5), QByteArray("\x10\0\x30\0\1\2\0\1", 8),
                                  QByteArray("\1\0\0\0\1", 5), QByteArray("\x08\0\0\0\0", 5), QByteArray("\x63", 1)}) {
        writer.socket.write(Request(pdu));
        ASSERT_TRUE(Await([&] { return writer.socket.bytesAvailable() >= 9; }));
        const QByteArray answer = writer.socket.readAll();
        EXPECT_TRUE(static_cast<unsigned char>(answer[7]) & 0x80U);
        EXPECT_EQ(answer[8], '\1') << "illegal function";
    }
    writer.socket.write(Request(QByteArray("\x03\xFF\xF0\0\x7D", 5)));
    ASSERT_TRUE(Await([&] { return writer.socket.bytesAvailable() >= 9; }));
    EXPECT_EQ(writer.socket.readAll()[8], '\2') << "illegal address";
    EXPECT_TRUE(isWell()) << "nothing was written";

    RawClient nonsense(simulated.server);
    nonsense.socket.write(QByteArray(100'000, '\xA7'));
    EXPECT_TRUE(isWell());

    RawClient flood(simulated.server);
    flood.socket.setReadBufferSize(1);
    const QByteArray many = Request(QByteArray("\x03\0\0\0\x30", 5)).repeated(10'000);
    ASSERT_TRUE(Await([&] {
        if (flood.IsClosed()) return true;
        if (flood.socket.bytesToWrite() < many.size()) flood.socket.write(many);
        return false;
    })) << "who does not fetch the answers is closed";
    EXPECT_TRUE(isWell());

    std::vector<std::unique_ptr<RawClient>> crowd;
    for (int i = 0; i < 30; ++i) crowd.push_back(std::make_unique<RawClient>(simulated.server));
    EXPECT_TRUE(Await([&] {
        return std::all_of(crowd.begin(), crowd.end(), [](auto& one) { return one->IsClosed(); });
    })) << "some are refused, the others are closed because they say nothing";
    EXPECT_TRUE(Await([&] { return nonsense.IsClosed() && writer.IsClosed(); }));
    EXPECT_TRUE(isWell());
}

} // namespace
} // namespace zqbchwcx::modbus
