#include "tests/views/OverviewFixture.h"

namespace zqbchwcx::testing {
namespace {

using ::testing::Contains;

/// Something that happens to the overview, and the procedure that handles it.
struct ViewEvent {
    std::string procedure;
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
    Tooltip Hover(VxEnumStyle eStyle) const
    {
        view->Style(eStyle);
        return toolkit->tooltips.Hover(Pic().hWnd(), CenterOf(4));
    }
    std::vector<ViewEvent> Events();

    std::int32_t mlEffect = 3;
};

std::vector<ViewEvent> OverviewFaultsTest::Events()
{
    const auto nothing = [] {};
    const auto press = [&] { Mouse().MouseDown(vxButtonLeft, 0, 234, 375); };
    const auto inStyle = [&](VxEnumStyle eStyle) { return [&, eStyle] { view->Style(eStyle); }; };
    const auto refresh = [&] { view->Refresh(); };
    return {
        {"moHWStation_RackPlaceChange", nothing, [&] { station->RackPlaceChange.Raise(station->Place(0, 4)); }},
        {"P_GetModulePicName", nothing, [&] { station->RackPlaceChange.Raise(station->Place(0, 8)); }},
        {"P_CheckIMLinks", nothing, [&] { station->RackPlaceChange.Raise(station->Place(1, 3)); }},
        {"moHWStation_RackChange", nothing, [&] { station->RackChange.Raise(station->Rack(1)); }},
        {"moHWStation_TotalRefresh", nothing, [&] { station->TotalRefresh.Raise(); }, 7},
        {"P_SetBorderSelection", nothing,
         [&] {
             Select({{0, 6}, {1, 1}});
         }},
        {"P_ResetPlaceFocus", nothing, [&] { handler->FocusPosition(9); }},
        {"P_SetGapFocus", nothing, [&] { handler->FocusPosition(9); }},
        {"P_ResetGapFocus", [&] { handler->FocusPosition(9); }, [&] { handler->FocusPosition(8); }},
        {"P_SetPlaceFocus", [&] { handler->FocusPosition(9); }, [&] { handler->FocusPosition(8); }},
        {"P_DrawBorder", nothing, [&] { station->RackPlaceChange.Raise(station->Place(0, 5)); }},
        {"P_SetHWDiagSymbols", inStyle(vxStyleHWDiag), refresh},
        {"P_SetHWCompareSymbols", inStyle(vxStyleHWCompare), refresh},
        {"IVxHWControl_VxHWStation", nothing, [&] { view->VxHWStation(station); }},
        {"P_LoadImageLists", nothing, [&] { view->VxHWStation(station); }},
        {"P_DrawPending", nothing, [&] { view->StateChange(vxDragDropStateActive); }, 7},
        {"sysinf_Main_SysColorsChanged", nothing, [&] { toolkit->sysColorsChanged(); }, 7},
        {"P_SetPlaceFocus", nothing, [&] { Pic().User().GotFocus(); }},
        {"P_RubberBand",
         [&] {
             Mouse().MouseDown(vxButtonLeft, 0, 234, 375);
             Mouse().MouseMove(vxButtonLeft, 0, 100, 300);
         },
         [&] { Mouse().MouseMove(vxButtonLeft, 0, 20, 300); }},
        {"P_SelectRubberContent", press, [&] { Mouse().MouseUp(vxButtonLeft, 0, 20, 300); }},
        {"P_OpenPopupMenu", nothing, [&] { Key(vxKeyApps); }},
        {"P_SetLanguageTexts", nothing, [&] { Mouse().MouseUp(vxButtonRight, 0, 30, 330); }},
        {"P_CursorKeyDown", nothing, [&] { Key(vxKeyUp); }},
        {"P_SetDragPointer", [&] { controller->state = vxDragDropStateActive; },
         [&] { Mouse().OLEDragOver(data, mlEffect, 0, 0, 90, 340, vxDragOver); }},
        {"P_DrawModuleToDragPointer", [&] { controller->state = vxDragDropStateActive; },
         [&] { Mouse().OLEDragOver(data, mlEffect, 0, 0, 90, 340, vxDragOver); }},
        {"moTTCallback_GetTooltip", nothing, [&] { Hover(vxStyleHWConfig); }},
        {"P_GetTooltipHWConfiguration", nothing, [&] { Hover(vxStyleHWConfig); }},
        {"P_GetTooltipHWDiagnostics", nothing, [&] { Hover(vxStyleHWDiag); }},
        {"P_GetTooltipHWCompare", nothing, [&] { Hover(vxStyleHWCompare); }},
        {"UserControl_Resize", nothing, [&] { site.Resize(100, 100); }},
    };
}

TEST_F(OverviewFaultsTest, AFailingCallIsReportedAndTheViewGoesOn)
{
    BackToTheStart();
    const Raster whole = Pic().raster;
    std::int32_t lFaults = 0;
    for (const auto& event : Events()) {
        BackToTheStart();
        event.prepare();
        log->faults.Restart();
        event.raise();
        const std::int32_t lCalls = log->faults.Count();
        ASSERT_GT(lCalls, 0) << event.procedure;
        ASSERT_THAT(TakeReports(), ::testing::IsEmpty()) << event.procedure;

        Lines procedures;
        BackToTheStart();
        for (std::int32_t n = 1; n <= lCalls; n += event.lStride, ++lFaults) {
            event.prepare();
            log->faults.ThrowAt(n);
            event.raise();
            const auto thrown = log->faults.Thrown();
            log->faults.Restart();
            const auto reports = TakeReports();
            ASSERT_FALSE(thrown.empty());
            ASSERT_FALSE(reports.empty()) << event.procedure << ": " << thrown;
            procedures.insert(procedures.end(), reports.begin(), reports.end());

            BackToTheStart();
            ASSERT_EQ(Raster::FirstDifference(Pic().raster, whole), "") << event.procedure << ": " << thrown;
            ASSERT_THAT(TakeReports(), ::testing::IsEmpty()) << event.procedure << ": " << thrown;
        }
        EXPECT_THAT(procedures, Contains("zqbchwcx.VxHWRackOverview." + event.procedure));
    }
    RecordProperty("faults", lFaults);
}

TEST_F(OverviewFaultsTest, AViewWhoseChildrenCannotBeMadeReportsInsteadOfFailing)
{
    const auto use = [&](RecordingControl& control) {
        auto made = MakeView(control);
        made->Refresh();
        made->Locked(true);
        std::int32_t x = 0;
        made->CoordinatesByPosition(8, x, x);
        handler->FocusPosition(handler->FocusPosition() == 8 ? 9 : 8);
        if (control.IsConnected()) control.User().KeyUp(vxKeyApps, 0);
        made->VxHWStation(nullptr);
    };
    log->faults.Restart();
    {
        RecordingControl control(log);
        auto made = std::make_shared<VxHWRackOverview>(control);
    }
    const std::int32_t lCalls = log->faults.Count();
    for (std::int32_t n = 1; n <= lCalls; ++n) {
        RecordingControl control(log);
        log->faults.ThrowAt(n);
        use(control);
        log->faults.Restart();
        ASSERT_FALSE(control.IsConnected());
        ASSERT_FALSE(TakeReports().empty()) << n;
    }
    EXPECT_EQ(services.host->openTexts, 1) << "only the fixture's own view";
}

} // namespace
} // namespace zqbchwcx::testing
