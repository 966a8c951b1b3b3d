// What it costs to follow a plant: a change of one place from the registers that were read to the picture, against
// drawing all views anew; the panel against a focus move; polling a very large plant; and a million changes in memory.
// Ends with the figures; fails when a limit is exceeded.

#include "adapters/modbus/ModbusSource.h"
#include "adapters/modbus/SimulatorServer.h"
#include "app/document/Document.h"
#include "app/plant/FaultLogModel.h"
#include "app/plant/PlantSession.h"
#include "app/window/DiagnosticsView.h"
#include "bench/Ratios.h"
#include "bench/Stage.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/qt/DiagPanelWidget.h"
#include "zqbchwcx/reference/diag/Simulation.h"
#include "zqbchwcx/views/diag/VxHWDiagPanel.h"

#include <QApplication>
#include <QEventLoop>
#include <QFile>

#include <utility>
#include <vector>

using namespace zqbchwcx;
using namespace quillon_ed;

namespace {

/// A source that tells what it is told to.
class SteppedSource : public reference::DiagSource {
public:
    SteppedSource(const reference::StationData& station, reference::PlantPtr plant)
        : mcolRegisters(reference::RegisterMap(station).FreshRegisters()), moPlant(std::move(plant))
    {
    }

    void Open() override { PollNow(); }
    void Close() override { moPlant->Lose(reference::ConnectionKind::Closed); }
    void PollNow() override { moPlant->Take(0, mcolRegisters); }
    /// The state of one place is another one, in registers that were all read anew.
    void Change(std::size_t item, bool bFaulty)
    {
        mcolRegisters[reference::MapHead::FirstItem + item] = bFaulty ? 0x0803 : 0;
        ++mcolRegisters[reference::MapHead::ChangeCounter];
        PollNow();
    }

private:
    std::vector<std::uint16_t> mcolRegisters;
    reference::PlantPtr moPlant;
};

class DiagnosticsStage {
public:
    DiagnosticsStage()
        : mSettings(mDirectory.filePath("settings.ini"), QSettings::IniFormat), mServices(mSettings),
          mDocument(mServices.Context(), Load(), {}, {}), mSession(mServices.Context()->catalogue)
    {
        mSession.Fit(mDocument.Station()->Data());
        mSession.Connect("stepped", [](const reference::StationData& station, reference::PlantPtr plant) {
            return OpenedSource{std::make_unique<SteppedSource>(station, std::move(plant)), {}};
        });
        mView = std::make_unique<DiagnosticsView>(mDocument, mSession, nullptr);
        mView->resize(900, 720);
        mView->show();
        QCoreApplication::processEvents();
    }

    DiagnosticsView& View() { return *mView; }
    PlantSession& Session() { return mSession; }
    SteppedSource& Source() { return dynamic_cast<SteppedSource&>(*mSession.Source()); }
    VxHWDiagPanel& Panel() { return *mView->findChild<qt::DiagPanelWidget*>()->Control(); }

private:
    reference::StationData Load() const
    {
        return reference::LoadStation(QUILLON_SOURCE_DIR "/examples/packaging-line.station.json", mServices.Catalogue())
            .data;
    }

    QTemporaryDir mDirectory;
    QSettings mSettings;
    AppServices mServices;
    Document mDocument;
    PlantSession mSession;
    std::unique_ptr<DiagnosticsView> mView;
};

template <class Step>
void Register(const char* name, Step step)
{
    benchmark::RegisterBenchmark(name, [=](benchmark::State& state) {
        DiagnosticsStage stage;
        bool bOdd = false;
        for (auto round : state) {
            step(stage, bOdd = !bOdd);
            QCoreApplication::processEvents();
        }
    });
}

/// 100 stations' worth of places, in one map.
reference::StationData LargePlant()
{
    reference::StationData station;
    auto rack = std::make_shared<reference::RackData>();
    rack->places.resize(44);
    station.racks.assign(100, rack);
    return station;
}

/// One poll that finds a change somewhere, client and simulated controller together.
void PollLargePlant(benchmark::State& state)
{
    const reference::StationData station = LargePlant();
    modbus::SimulatorServer server(reference::Simulation(station).Registers());
    server.Listen({"127.0.0.1", 0, 1});
    const auto plant = std::make_shared<reference::Plant>(reference::RegisterMap(station), [] {
        return std::chrono::floor<std::chrono::milliseconds>(std::chrono::system_clock::now());
    });
    QEventLoop waiting;
    const auto changed = plant->Changed.Connect([&](const reference::PlantChange& change) {
        if (!change.registers.empty()) waiting.quit();
    });
    modbus::ModbusTimes times;
    times.poll = std::chrono::hours(1);
    modbus::ModbusSource source({"127.0.0.1", server.Port(), 1}, plant, times);
    source.Open();
    waiting.exec();
    std::uint16_t nCounter = 0;
    for (auto round : state) {
        ++nCounter;
        const std::size_t place = reference::MapHead::FirstItem + nCounter % 4400U;
        server.Publish(std::vector<reference::RegisterValue>{
            {place, static_cast<std::uint16_t>(nCounter / 4400U % 2 == 0 ? 0x0803 : 0)},
            {reference::MapHead::ChangeCounter, nCounter}});
        source.PollNow();
        waiting.exec();
    }
}

/// Of this process, in KiB.
double ResidentMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4;
}

double GrowthOverAMillionChanges()
{
    DiagnosticsStage stage;
    FaultLogModel log(nullptr);
    const auto logged =
        stage.Session().Logged.Connect([&](const std::vector<reference::PlantLogEntry>& entries) { log.Add(entries); });
    const auto change = [&](int times) {
        for (int i = 0; i < times; ++i) {
            stage.Source().Change(static_cast<std::size_t>(i % 40), i / 40 % 2 == 0);
            if (i % 1000 == 0) QCoreApplication::processEvents();
        }
    };
    change(50'000);
    const double before = ResidentMemory();
    change(1'000'000);
    return ResidentMemory() / before;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    using bench::Stage;

    Register("Refresh", [](DiagnosticsStage& stage, bool) { stage.View().Refresh(); });
    Register("PlaceChange", [](DiagnosticsStage& stage, bool bOdd) { stage.Source().Change(4, bOdd); });
    Register("PanelRefill", [](DiagnosticsStage& stage, bool) { stage.Panel().Refresh(); });
    benchmark::RegisterBenchmark("FocusMove", [](benchmark::State& state) {
        Stage stage(Stage::Views::Both);
        stage.Show();
        bool bOdd = false;
        for (auto round : state) {
            bOdd = !bOdd;
            stage.Focus(G_PlacePosition(0, bOdd ? 4 : 5));
            QCoreApplication::processEvents();
        }
    });
    benchmark::RegisterBenchmark("PollLargePlant", PollLargePlant);
    benchmark::Initialize(&argc, argv);
    bench::TimesReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);

    bool bKept = times.Check("PlaceChange", "Refresh", 0.1);
    bKept = times.Check("PanelRefill", "FocusMove", 1.5) && bKept;
    constexpr double PollsInASecond = 10;
    constexpr double Nanosecond = 1e-9;
    if (times.Has("PollLargePlant"))
        bKept = bench::TimesReporter::CheckRatio("ten polls / a second of a core",
                                                 PollsInASecond * Nanosecond * times.Seconds("PollLargePlant"), 0.05) &&
                bKept;
    bKept =
        bench::TimesReporter::CheckRatio("memory after a million changes", GrowthOverAMillionChanges(), 1.05) && bKept;
    return bKept ? 0 : 1;
}
