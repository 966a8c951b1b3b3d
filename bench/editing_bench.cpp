// How long editing takes, in a full four-rack station that is shown, and opening and saving of the largest station
// against one of a hundredth of its size. Ends with the ratios; fails when a limit is exceeded.

#include "bench/LargeStation.h"
#include "bench/Ratios.h"
#include "bench/Stage.h"
#include "zqbchwcx/foundation/ConfigTextCodec.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/foundation/model/VxHWModelFactory.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/platform/Desktop.h"
#include "zqbchwcx/platform/Input.h"
#include "zqbchwcx/reference/files/StationWriter.h"
#include "zqbchwcx/reference/history/History.h"

#include <QApplication>
#include <QTemporaryDir>

#include <map>

using namespace zqbchwcx;
using quillon_ed::bench::Stage;
using quillon_ed::bench::TimesReporter;

namespace {

constexpr reference::PlaceRef LastPlace{0, 11};

VxHWModulesPtr OneModule(Stage& stage, const char* orderNumber)
{
    auto oModules = G_ServiceRoot().modelFactory->CreateModules();
    oModules->Add(stage.Station().CreateModule(orderNumber), true);
    return oModules;
}

/// What a drag of one module carries.
class DragData : public DataObject {
public:
    explicit DragData(const VxHWModulesPtr& oModules)
        : mnFormat(G_ServiceRoot().toolkit->GetDesktop().RegisterClipboardFormat(G_ConfigTextFormatName)),
          mData(G_EncodeConfigText(oModules->ConfigText()))
    {
    }

    void SetData(std::int16_t, const ByteArray&) override {}
    void AnnounceFormat(std::int16_t) override {}
    bool GetFormat(std::int16_t nFormat) const override { return nFormat == mnFormat; }
    ByteArray GetData(std::int16_t nFormat) const override { return GetFormat(nFormat) ? mData : ByteArray(); }

private:
    std::int16_t mnFormat;
    ByteArray mData;
};

class Drag {
public:
    Drag(Stage& stage, const VxHWModulesPtr& oModules)
        : moController(stage.View().VxHWDragDropController()), moData(std::make_shared<DragData>(oModules))
    {
    }

    void Over(std::int32_t lPosition, std::int16_t nState = vxDragOver)
    {
        std::int32_t lEffect = vxDropEffectCopyOrMove;
        moController->OLEDragOver(lPosition, moData, lEffect, vxButtonLeft, 0, nState);
    }

private:
    IVxHWDragDropControllerPtr moController;
    DataObjectPtr moData;
};

constexpr std::int32_t FirstOver = 3;
constexpr std::int32_t LastOver = 23; // each gap and place of a rack from place 2 on
constexpr double NewPositions = 3.0 * (LastOver - FirstOver + 1);

void PassOverRacks(Drag& drag)
{
    for (std::int32_t lRack = 1; lRack <= 3; ++lRack)
        for (std::int32_t lCode = FirstOver; lCode <= LastOver; ++lCode) drag.Over(lRack * vxRackFactor + lCode);
}

void RegisterFiles(const reference::Catalogue& catalogue, const std::string& fileName, std::int32_t lRacks,
                   const std::string& suffix)
{
    const auto data = std::make_shared<const reference::StationData>(quillon_ed::bench::LargeStation(lRacks));
    benchmark::RegisterBenchmark(("Save" + suffix).c_str(), [=](benchmark::State& state) {
        for (auto step : state) reference::SaveStation(*data, fileName);
    });
    benchmark::RegisterBenchmark(("Open" + suffix).c_str(), [=, &catalogue](benchmark::State& state) {
        reference::SaveStation(*data, fileName);
        for (auto step : state) benchmark::DoNotOptimize(reference::LoadStation(fileName, catalogue).data.racks.size());
    });
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Stage stage;
    reference::Station& station = stage.Station();
    const auto oPlaces = G_ServiceRoot().modelFactory->CreateRackPlaces();
    oPlaces->Add(station.PlaceAt(LastPlace));
    station.DeleteModules(oPlaces);
    oPlaces->Clear();
    reference::History history(stage.StationPtr());
    const auto oModule = OneModule(stage, "Q3-DI16-A");
    Drag drag(stage, oModule);

    benchmark::RegisterBenchmark("Refresh", [&](benchmark::State& state) {
        for (auto step : state) stage.View().Refresh();
    });
    benchmark::RegisterBenchmark("DragAround", [&](benchmark::State& state) {
        for (auto step : state) {
            drag.Over(2, vxDragEnter);
            drag.Over(2, vxDragLeave);
        }
    });
    benchmark::RegisterBenchmark("DragPass", [&](benchmark::State& state) {
        for (auto step : state) {
            drag.Over(2, vxDragEnter);
            PassOverRacks(drag);
            drag.Over(2, vxDragLeave);
        }
    });
    benchmark::RegisterBenchmark("DragOverSame", [&](benchmark::State& state) {
        drag.Over(2, vxDragEnter);
        for (auto step : state) drag.Over(2);
        drag.Over(2, vxDragLeave);
    });
    benchmark::RegisterBenchmark("PlaceAndUndo", [&](benchmark::State& state) {
        for (auto step : state) {
            station.PlaceModules(G_PlacePosition(0, 11), oModule, oPlaces);
            history.Undo();
        }
    });
    benchmark::RegisterBenchmark("MoveAndUndo", [&](benchmark::State& state) {
        const auto oSource = G_ServiceRoot().modelFactory->CreateRackPlaces();
        oSource->Add(station.PlaceAt({0, 10}));
        const auto oMoved = G_ServiceRoot().modelFactory->CreateModules();
        oMoved->Add(station.PlaceAt({0, 10})->Module(), true);
        for (auto step : state) {
            station.MoveModules(G_PlacePosition(0, 11), oMoved, oSource, oPlaces);
            history.Undo();
        }
    });
    benchmark::RegisterBenchmark("UndoAndRedo", [&](benchmark::State& state) {
        station.PlaceModules(G_PlacePosition(0, 11), oModule, oPlaces);
        for (auto step : state) {
            history.Undo();
            history.Redo();
        }
        history.Undo();
    });
    const QTemporaryDir directory;
    const std::string fileName = directory.filePath("large.station.json").toStdString();
    RegisterFiles(station.ModuleTypes(), fileName, 1, "Hundredth");
    RegisterFiles(station.ModuleTypes(), fileName, reference::MaxRacks, "Largest");

    benchmark::Initialize(&argc, argv);
    TimesReporter times;
    benchmark::RunSpecifiedBenchmarks(&times);

    bool bKept = true;
    if (times.Has("DragPass") && times.Has("DragAround") && times.Has("Refresh")) {
        const double overNew = (times.Seconds("DragPass") - times.Seconds("DragAround")) / NewPositions;
        bKept = TimesReporter::CheckRatio("DragOverNew / Refresh", overNew / times.Seconds("Refresh"), 0.3);
    }
    bKept = times.Check("DragOverSame", "Refresh", 0.01) && bKept;
    bKept = times.Check("PlaceAndUndo", "Refresh", 0.5) && bKept;
    bKept = times.Check("MoveAndUndo", "Refresh", 0.7) && bKept;
    bKept = times.Check("UndoAndRedo", "Refresh", 0.5) && bKept;
    // A hundred times the modules may take a hundred times as long, and something for memory that is further away.
    bKept = times.Check("SaveLargest", "SaveHundredth", 150) && bKept;
    bKept = times.Check("OpenLargest", "OpenHundredth", 150) && bKept;
    return bKept ? 0 : 1;
}
