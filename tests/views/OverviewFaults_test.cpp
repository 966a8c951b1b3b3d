#include "tests/views/OverviewFixture.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"

#include <sstream>

namespace zqbchwcx::testing {
namespace {

using ::testing::Contains;

/// Something that happens to the overview, and the procedures that report when it fails.
struct ViewEvent {
    std::string procedures;
    std::function<void()> prepare;
    std::function<void()> raise;
    std::int32_t lStride = 1; ///< more than 1 where the calls are those of another event again
};

class OverviewFaultsTest : public OverviewFixture {
protected:
    OverviewFaultsTest()
    {
        // Every call of every event fails once, so the station is a small one.
        station = std::make_shared<FakeStation>(log, 2, 8);
        handler->VxHWStation(station);
        view->VxHWStation(station);
        Put(0, 2, "IDB_CRX_MODULE_CPU")->hasParamDialog = true;
        Put(1, 3, "IDB_CRX_MODULE_IM");
        Put(0, 4, "IDB_CRX_MODULE_IO_DIGITAL", 3);
        Put(0, 8, "Pump");
        diag->failures = {{"0/2", 1}};
        diag->diagStates = {{"0/2", 1}};
        diag->cpuStates = {{"0/2", 10}};
        compare->results = {{"0/2", 4}};
        auto modules = std::make_shared<FakeModules>(log);
        modules->members = {station->Module(0, 4), station->Module(0, 2)};
        controller->dragModules = modules;
    }

    void BackToTheStart()
    {
        Mouse().MouseUp(vxButtonLeft, 0, 0, 0);
        controller->state = vxDragDropStateInactive;
        DragPic().Visible(false);
        view->Style(vxStyleHWConfig);
        view->Locked(false);
        site.Resize(3900, 6000);
        handler->FocusPosition(4);
        Select({{0, 5}});
        view->VxHWStation(station);
        view->Refresh();
    }
    std::vector<ViewEvent> Events();

    std::int32_t mlEffect = 3;
};

std::vector<ViewEvent> OverviewFaultsTest::Events()
{
    using Step = std::function<void()>;
    const Step nothing = [] {};
    const Step refresh = [&] { view->Refresh(); };
    const Step setStation = [&] { view->VxHWStation(station); };
    const Step toolTip = [&] { toolkit->tooltips.Hover(Pic().hWnd(), CenterOf(4)); };
    const Step drag = [&] { controller->state = vxDragDropStateActive; };
    const Step dragOver = [&] { Mouse().OLEDragOver(data, mlEffect, 0, 0, 90, 340, vxDragOver); };
    const Step press = [&] { Mouse().MouseDown(vxButtonLeft, 0, 234, 375); };
    const auto move = [&](float x) { return [&, x] { Mouse().MouseMove(vxButtonLeft, 0, x, 300); }; };
    const auto style = [&](VxEnumStyle eStyle) { return [&, eStyle] { view->Style(eStyle); }; };
    const auto focus = [&](std::int32_t lPosition) { return [&, lPosition] { handler->FocusPosition(lPosition); }; };
    const auto change = [&](std::int32_t lRack, std::int32_t lPlace) {
        return [&, lRack, lPlace] { station->RackPlaceChange.Raise(station->Place(lRack, lPlace)); };
    };
    return {
        {"moHWStation_RackPlaceChange", nothing, change(0, 4)},
        {"P_GetModulePicName", nothing, change(0, 8)},
        {"P_CheckIMLinks", nothing, change(1, 3)},
        {"P_DrawBorder", nothing, change(0, 5)},
        {"moHWStation_RackChange", nothing, [&] { station->RackChange.Raise(station->Rack(1)); }},
        {"moHWStation_TotalRefresh", nothing, [&] { station->TotalRefresh.Raise(); }, 7},
        {"P_SetBorderSelection", nothing,
         [&] {
             Select({{0, 6}, {1, 1}});
         }},
        {"P_ResetPlaceFocus P_SetGapFocus", nothing, focus(9)},
        {"P_ResetGapFocus P_SetPlaceFocus", focus(9), focus(8)},
        {"P_SetHWDiagSymbols", style(vxStyleHWDiag), refresh},
        {"P_SetHWCompareSymbols", style(vxStyleHWCompare), refresh},
        {"IVxHWControl_VxHWStation P_LoadImageLists", nothing, setStation},
        {"P_DrawPending", nothing, [&] { view->StateChange(vxDragDropStateActive); }, 7},
        {"sysinf_Main_SysColorsChanged", nothing, [&] { toolkit->sysColorsChanged(); }, 7},
        {"P_SetPlaceFocus", nothing, [&] { Pic().User().GotFocus(); }},
        {"P_RubberBand", [=] { press(), move(100)(); }, move(20)},
        {"P_SelectRubberContent", press, [&] { Mouse().MouseUp(vxButtonLeft, 0, 20, 300); }},
        {"P_OpenPopupMenu", nothing, [&] { Key(vxKeyApps); }},
        {"P_SetLanguageTexts", nothing, [&] { Mouse().MouseUp(vxButtonRight, 0, 30, 330); }},
        {"P_CursorKeyDown", nothing, [&] { Key(vxKeyUp); }},
        {"P_SetDragPointer P_DrawModuleToDragPointer", drag, dragOver},
        {"moTTCallback_GetTooltip P_GetTooltipHWConfiguration", nothing, toolTip},
        {"P_GetTooltipHWDiagnostics", style(vxStyleHWDiag), toolTip},
        {"P_GetTooltipHWCompare", style(vxStyleHWCompare), toolTip},
        {"UserControl_Resize", nothing, [&] { site.Resize(100, 100); }},
    };
}

TEST_F(OverviewFaultsTest, AFailingCallIsReportedAndTheViewGoesOn)
{
    BackToTheStart();
    const Raster whole = Pic().raster;
    for (const auto& event : Events()) {
        BackToTheStart();
        event.prepare();
        log->faults.Restart();
        event.raise();
        const std::int32_t lCalls = log->faults.Count();
        ASSERT_GT(lCalls, 0) << event.procedures;
        ASSERT_EQ(TakeReports(), Lines{}) << event.procedures;

        Lines sources;
        BackToTheStart();
        for (std::int32_t n = 1; n <= lCalls; n += event.lStride) {
            event.prepare();
            log->faults.ThrowAt(n);
            event.raise();
            SCOPED_TRACE(event.procedures + ": " + log->faults.Thrown());
            ASSERT_FALSE(log->faults.Thrown().empty());
            log->faults.Restart();
            const auto reports = TakeReports();
            ASSERT_FALSE(reports.empty());
            sources.insert(sources.end(), reports.begin(), reports.end());

            BackToTheStart();
            ASSERT_EQ(Raster::FirstDifference(Pic().raster, whole), "");
            ASSERT_EQ(TakeReports(), Lines{});
        }
        std::istringstream procedures(event.procedures);
        for (std::string procedure; procedures >> procedure;)
            EXPECT_THAT(sources, Contains("zqbchwcx.VxHWRackOverview." + procedure));
    }
}

TEST_F(OverviewFaultsTest, AHostMayEndTheModeInTheMiddleOfAnyCall)
{
    const auto key = [&](std::int16_t nKeyCode, std::int16_t nShift) {
        return [&, nKeyCode, nShift] { site.User().KeyDown(nKeyCode, nShift); };
    };
    const auto overPlaceOne = [&](std::int16_t nState) { Mouse().OLEDragOver(data, mlEffect, 0, 0, 30, 340, nState); };
    const std::function<void()> events[] = {
        [&] { Mouse().MouseDown(vxButtonLeft, 0, 90, 340); },
        [&] { Mouse().MouseUp(vxButtonLeft, 0, 90, 340); },
        [&] { Mouse().MouseUp(vxButtonRight, 0, 90, 340); },
        [&] { Mouse().DblClick(); },
        key(vxKeyRight, 0),
        key(vxKeySpace, 0),
        key(vxKeyReturn, 0),
        key(vxKeyDelete, 0),
        [&] { Mouse().OLEStartDrag(data, mlEffect); },
        [&] { overPlaceOne(vxDragEnter); },
        [&] { Mouse().OLEDragDrop(data, mlEffect, 0, 0, 30, 340); },
        [&] { Mouse().OLECompleteDrag(mlEffect); },
        [&] { view->Refresh(); },
    };
    const std::int32_t lEvents = static_cast<std::int32_t>(std::size(events));
    for (std::int32_t lEvent = 0; lEvent < lEvents; ++lEvent) {
        // The first calls decide; many later ones draw one place like another.
        for (std::int32_t lCall = 1;; lCall += 1 + lCall / 16) {
            const auto manager = std::make_shared<VxHWConfigManager>();
            manager->Initialize(vxStationTypeCentral, view, table, station);
            Put(0, 2, "IDB_CRX_MODULE_CPU")->hasParamDialog = true;
            manager->VxHWSelectionHandler()->FocusPosition(4);
            Mouse().MouseDown(vxButtonLeft, 0, 50, 340);
            if (lEvent > 8) Mouse().OLEStartDrag(data, mlEffect);
            if (lEvent > 9) overPlaceOne(vxDragEnter);
            ASSERT_EQ(TakeReports(), Lines{});
            log->faults.RunAt(lCall, [&] { manager->Terminate(); });
            events[lEvent]();
            const bool bEnded = !log->faults.Thrown().empty();
            log->faults.Restart();
            manager->Terminate();
            toolkit->clock.Advance(20);
            Mouse().MouseUp(vxButtonLeft, 0, 0, 0);
            TakeReports();
            if (!bEnded) break;
        }
    }
}

TEST_F(OverviewFaultsTest, AViewWhoseChildrenCannotBeMadeReportsInsteadOfFailing)
{
    std::int32_t lCalls = 1;
    for (std::int32_t n = 0; n <= lCalls; ++n) {
        RecordingControl control(log);
        log->faults.ThrowAt(n);
        auto made = std::make_shared<VxHWRackOverview>(control);
        if (n == 0) lCalls = log->faults.Count();
        log->faults.Restart();
        EXPECT_EQ(TakeReports().empty(), n == 0) << n;
        Connect(*made);
        made->Refresh();
        made->Locked(true);
        std::int32_t x = 0;
        made->CoordinatesByPosition(8, x, x);
        handler->FocusPosition(8 + n % 2);
        if (control.IsConnected()) control.User().KeyUp(vxKeyApps, 0);
        made->VxHWStation(nullptr);
        TakeReports();
        made.reset();
        ASSERT_FALSE(control.IsConnected());
    }
    EXPECT_EQ(services.host->openTexts, 1) << "only the fixture's own view";
}

} // namespace
} // namespace zqbchwcx::testing
