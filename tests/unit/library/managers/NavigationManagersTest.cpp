#include "tests/support/StationStage.h"
#include "tests/support/model/FakeModelServices.h"
#include "zqbchwcx/managers/VxHWCompManager.h"
#include "zqbchwcx/managers/VxHWDiagManager.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;

const Lines GivenControllers = {".VxHWMouseInputController set", ".VxHWKeyInputController set",
                                ".VxHWDragDropController set"};
const Lines GivenDiag = {".VxHWStation set", ".VxHWDiagService set", ".VxHWSelectionHandler set"};
const Lines GivenPair = {".VxHWStation1 set", ".VxHWStation2 set", ".VxHWCompareService set",
                         ".VxHWSelectionHandler set"};

/// What is taken away again, in the same order.
Lines Taken(Lines given)
{
    for (std::string& line : given) line.replace(line.rfind(' '), std::string::npos, " nothing");
    return given;
}

/// The diagnostics and the compare manager.
class NavigationManagers : public StationFixture {
protected:
    NavigationManagers() { handler = nullptr; }

    void InitializeDiag()
    {
        diagManager.Initialize(vxStationTypeDistributed1, overview, table, panel, station, diag);
        handler = diagManager.VxHWSelectionHandler();
    }
    void InitializeComp()
    {
        compManager.Initialize(vxStationTypeDistributed1, overview, compareTable, deltaList, station, other, compare,
                               HWCompareType{2});
        handler = compManager.VxHWSelectionHandler();
    }
    /// Whether the controller of a view has what its mode has set on it.
    template <class Input>
    void ExpectConnected(const std::shared_ptr<Input>& oiInput, bool bConnected, bool bDiag) const
    {
        const auto& controller = dynamic_cast<const IVxHWController&>(*oiInput);
        EXPECT_EQ(controller.VxHWStation(), bConnected ? station : nullptr);
        EXPECT_EQ(controller.VxHWSelectionHandler(), bConnected ? handler : nullptr);
        EXPECT_EQ(controller.VxHWDiagService(), bConnected && bDiag ? diag : nullptr);
        EXPECT_EQ(controller.VxHWCompareService(), bConnected && !bDiag ? compare : nullptr);
    }

    WatchedStationPtr other = MakeStation(EmptyStation(vxStationKindCentral, 2));
    std::shared_ptr<FakeDiagService> diag = std::make_shared<FakeDiagService>(services.log);
    std::shared_ptr<FakeCompareService> compare = std::make_shared<FakeCompareService>(services.log);
    std::shared_ptr<RecordingView> panel = std::make_shared<RecordingView>(services.log, "panel");
    std::shared_ptr<RecordingCompareView> compareTable =
        std::make_shared<RecordingCompareView>(services.log, "compareTable");
    std::shared_ptr<RecordingCompareView> deltaList = std::make_shared<RecordingCompareView>(services.log, "deltaList");
    VxHWDiagManager diagManager;
    VxHWCompManager compManager;
};

TEST_F(NavigationManagers, DiagnosticsConnectRefreshAndDisconnectInOrder)
{
    station->Usability(0, 1, vxPlaceNotUsable);
    const Lines given = Joined({GivenDiag, GivenControllers});
    const Lines givenView = Joined({{".StationType 1", ".Style 2"}, given});
    EXPECT_EQ(LinesOf([&] { InitializeDiag(); }),
              Joined({{"Diag.Station set", "Register VxHWSelectionHandler", "Register VxHWDiagCtrlMouse",
                       "Register VxHWDiagCtrlKey", "Register VxHWDiagCtrlDD"},
                      Prefixed("overview", givenView),
                      Prefixed("table", givenView),
                      Prefixed("panel", GivenDiag),
                      {"overview.Refresh", "table.Refresh"}}));
    EXPECT_EQ(Marks(), " | 4 | 4") << "nothing is selected";
    for (const auto& view : {overview, table, panel}) {
        EXPECT_EQ(view->VxHWStation(), station);
        EXPECT_EQ(view->VxHWDiagService(), diag);
        EXPECT_EQ(view->VxHWSelectionHandler(), handler);
    }
    const auto oMouse = overview->VxHWMouseInputController();
    const auto oKey = table->VxHWKeyInputController();
    ExpectConnected(oMouse, true, true);
    ExpectConnected(oKey, true, true);
    EXPECT_FALSE(panel->VxHWMouseInputController());
    EXPECT_EQ(handler->VxHWStation(), station);

    EXPECT_THAT(
        LinesOf([&] { diagManager.Refresh(); }),
        ElementsAre("RefreshDiagnostics", "Diag.Station set", "overview.Refresh", "table.Refresh", "panel.Refresh"));

    EXPECT_EQ(LinesOf([&] { diagManager.Terminate(); }), Joined({Prefixed("overview", Taken(given)),
                                                                 Prefixed("table", Taken(given)),
                                                                 Prefixed("panel", Taken(GivenDiag)),
                                                                 {"Unregister VxHWDiagCtrlDD"}}));
    ExpectConnected(oMouse, false, true);
    ExpectConnected(oKey, false, true);
    EXPECT_EQ(handler->VxHWStation(), nullptr);
    EXPECT_EQ(diagManager.VxHWSelectionHandler(), nullptr);
    EXPECT_EQ(station.use_count() + diag.use_count() + panel.use_count(), 3);
}

TEST_F(NavigationManagers, CompareConnectsRefreshesAndDisconnectsInOrder)
{
    const Lines given =
        Joined({{".VxHWStation set", ".VxHWCompareService set", ".VxHWSelectionHandler set"}, GivenControllers});
    const Lines givenTable = Joined({GivenPair, {".VxHWMouseInputController set", ".VxHWKeyInputController set"}});
    const Lines drawn = {"Compare", "overview.Refresh", "compareTable.Refresh", "deltaList.Refresh"};
    EXPECT_EQ(LinesOf([&] { InitializeComp(); }),
              Joined({{"Register VxHWSelectionHandler", "Register VxHWCompCtrlMouse", "Register VxHWCompCtrlKey",
                       "Register VxHWCompCtrlDD", "overview.StationType 1", "overview.Style 0"},
                      Prefixed("overview", given),
                      {"compareTable.StationType 1", "compareTable.HWCompareType 2"},
                      Prefixed("compareTable", givenTable),
                      {"deltaList.HWCompareType 2"},
                      Prefixed("deltaList", GivenPair),
                      drawn}));
    EXPECT_EQ(Marks(), " | 2 | 2");
    EXPECT_EQ(overview->VxHWStation(), station);
    EXPECT_EQ(overview->VxHWCompareService(), compare);
    for (const auto& view : {compareTable, deltaList}) {
        EXPECT_EQ(view->VxHWStation1(), station);
        EXPECT_EQ(view->VxHWStation2(), other);
        EXPECT_EQ(view->VxHWCompareService(), compare);
        EXPECT_EQ(view->VxHWSelectionHandler(), handler);
    }
    const auto oMouse = compareTable->VxHWMouseInputController();
    const auto oKey = overview->VxHWKeyInputController();
    ExpectConnected(oMouse, true, false);
    ExpectConnected(oKey, true, false);

    EXPECT_EQ(LinesOf([&] { compManager.Refresh(); }), drawn) << "offline stations are not read";
    station->Change([](auto& plain) { plain.displayMode = vxDisplayModeOnline2; });
    other->Change([](auto& plain) { plain.displayMode = vxDisplayModeOnline1; });
    EXPECT_EQ(LinesOf([&] { compManager.Refresh(); }), Joined({{"RefreshOnline", "RefreshOnline"}, drawn}));

    EXPECT_EQ(LinesOf([&] { compManager.Terminate(); }), Joined({Prefixed("overview", Taken(given)),
                                                                 Prefixed("compareTable", Taken(givenTable)),
                                                                 Prefixed("deltaList", Taken(GivenPair)),
                                                                 {"Unregister VxHWCompCtrlDD"}}));
    ExpectConnected(oMouse, false, false);
    ExpectConnected(oKey, false, false);
    EXPECT_EQ(station.use_count() + other.use_count() + compare.use_count() + deltaList.use_count(), 4);
}

TEST_F(NavigationManagers, ReportWhatCannotBeDone)
{
    diagManager.Refresh();
    compManager.Refresh();
    diagManager.Terminate();
    compManager.Terminate();
    diagManager.Initialize(vxStationTypeCentral, overview, table, panel, station, nullptr);
    diagManager.Initialize(vxStationTypeCentral, overview, table, nullptr, station, diag);
    compManager.Initialize(vxStationTypeCentral, overview, compareTable, deltaList, station, other, nullptr, {});
    for (std::int32_t lPlace = 1; lPlace <= 11; ++lPlace) station->Usability(0, lPlace, vxPlaceNotUsable);
    InitializeDiag();
    EXPECT_EQ(Marks(), " | 0 | 0") << "no place can be used";
    Lines procedures;
    for (const std::string& source : TakeReports()) procedures.push_back(source.substr(source.find('.') + 1));
    EXPECT_THAT(procedures,
                ElementsAre("VxHWDiagManager.Refresh", "VxHWCompManager.Refresh", "VxHWDiagManager.Terminate",
                            "VxHWCompManager.Terminate", "VxHWDiagManager.Initialize", "VxHWDiagManager.Initialize",
                            "VxHWCompManager.Initialize"));
}

} // namespace
} // namespace zqbchwcx::testing
