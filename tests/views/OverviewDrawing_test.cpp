#include "tests/views/OverviewFixture.h"
#include "zqbchwcx/reference/model/contract/Module.h"
#include "zqbchwcx/views/overview/GroupFrame.h"

namespace zqbchwcx::testing {
namespace {

using namespace ::testing;

class OverviewDrawing : public CentralOverview {};

TEST_F(OverviewDrawing, LockingChangesTheBackgroundAndDrawsAnew)
{
    const auto lock = [&] { view->Locked(true); };
    const auto lines = DrawnBy(lock);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "BackColor " + std::to_string(vxColorLight3D));
    EXPECT_THAT(lines, Contains("Image PLACE_ACTIVE 0/1 style 0"));
    EXPECT_THAT(DrawnBy(lock), IsEmpty());
    toolkit->desktop.systemColors[vxColorLight3D] = toolkit->desktop.systemColors[vxColorButtonFace];
    EXPECT_EQ(DrawnBy([&] { toolkit->sysColorsChanged(); }).front(),
              "BackColor " + std::to_string(G_Rgb(234, 232, 228)));
}

TEST_F(OverviewDrawing, PlacesShowTheirUsabilityAndTheDrag)
{
    struct Case {
        std::int32_t usability;
        bool drag;
        const char* number;
        const char* picture;
    };
    for (const Case& c :
         {Case{-1, false, "Fill 0/4 number window", "INACTIVE"},
          Case{-1, true, "Fill 0/4 number window", "INACTIVE_NODROP"},
          Case{0, false, "Text 4 0/4 number gray", "INACTIVE"},
          Case{0, true, "Text 4 0/4 number gray", "INACTIVE_NODROP"},
          Case{1, false, "Text 4 0/4 number text", "ACTIVE"}, Case{1, true, "Text 4 0/4 number text", "NODROP"}}) {
        station->Usability(0, 4, c.usability);
        controller->state = c.drag ? vxDragDropStateActive : vxDragDropStateInactive;
        EXPECT_THAT(DrawingOf(0, 4), ElementsAre(c.number, "Image PLACE_" + std::string(c.picture) + " 0/4 style 0"));
    }
    controller->dropPlace = "0/4";
    EXPECT_THAT(DrawingOf(0, 4), Contains("Image PLACE_DROP 0/4 style 0"));
    station->Usability(0, 4, 5);
    EXPECT_THAT(DrawingOf(0, 4), IsEmpty());
    station->Put(0, 6, "PS");
    EXPECT_THAT(DrawingOf(0, 6), ElementsAre("Text 6 0/6 number text", "Image MODULE_PS 0/6 style 0"))
        << "the drag leaves modules alone";
}

TEST_F(OverviewDrawing, ModulePicturesComeFromTheListOrFromAFileThatIsLoadedOnce)
{
    services.host->settings[{"Software\\Halvar\\Quillon_Ed\\General\\Paths", "DataDirectory"}] = "C:\\Data";
    auto& files = *toolkit->imageLists.files;
    files.existing = {"C:\\Data\\HWPics\\PUMP.bmp"};
    const std::pair<std::int32_t, const char*> pictures[] = {{5, "PUMP "}, {6, "MODULE_DEFAULT "}, {7, "MODULE_CPU "}};
    for (const char* type : {"Pump", "NoSuchFile", "CPU"})
        station->Put(0, type[0] == 'P' ? 5 : *type == 'N' ? 6 : 7, type);
    for (int i = 0; i < 2; ++i)
        for (const auto& [lPlace, picture] : pictures)
            EXPECT_THAT(DrawingOf(0, lPlace), Contains(HasSubstr(picture))) << lPlace;
    EXPECT_THAT(files.asked, ElementsAre("C:\\Data\\HWPics\\PUMP.bmp", "C:\\Data\\HWPics\\NOSUCHFILE.bmp"));

    station->Put(0, 8, "idb_of_another_list");
    TakeReports();
    EXPECT_THAT(DrawingOf(0, 8), Not(Contains(HasSubstr("Image "))));
    EXPECT_THAT(TakeReports(), ElementsAre(EndsWith(".moHWStation_RackPlaceChange")));
    EXPECT_EQ(files.asked.size(), 2U) << "a built-in picture was looked for among the files";
}

TEST_F(OverviewDrawing, GroupFramesFollowTheModulesAndTheirSelection)
{
    station->Put(0, 4, "IO_DIGITAL3");
    EXPECT_EQ(DrawingOf(0, 4).back(), "Image FRAME_LEFT 0/4 style 1");
    EXPECT_EQ(DrawingOf(0, 5).back(), "Image FRAME_MID 0/5 style 1");
    EXPECT_EQ(DrawingOf(0, 6).back(), "Image FRAME_RIGHT 0/6 style 1");
    EXPECT_THAT(DrawnBy([&] {
                    Select({{0, 5}});
                }),
                ElementsAre("Text 5 0/5 number text", "Image MODULE_IO_DIGITAL 0/5 style 4",
                            "Image FRAME_MID 0/5 style 5", "Image FRAME_LEFT 0/4 style 5",
                            "Image FRAME_MID 0/5 style 5", "Image FRAME_RIGHT 0/6 style 5"));
    EXPECT_THAT(DrawnBy([&] { Select({}); }),
                ElementsAre(HasSubstr("Text 5"), EndsWith("0/5 style 0"), EndsWith("0/5 style 1"),
                            EndsWith("0/4 style 1"), EndsWith("0/5 style 1"), EndsWith("0/6 style 1")));

    // A model's parent of one place, which the reference model does not have.
    struct OnlyMember : reference::Module {
        using Module::Module;
        std::int32_t PlaceCount() const override { return 1; }
    };
    const auto oMember = std::make_shared<OnlyMember>(std::make_shared<reference::ModuleBody>(), 1);
    EXPECT_EQ(G_GroupFrameKey(variant.style, *oMember, oMember), variant.style.frameTotal);
}

TEST_F(OverviewDrawing, ASelectionChangeDrawsOnlyWhatChangedAndTellsIt)
{
    Select({{0, 4}, {0, 5}, {0, 1}});
    Lines events;
    const auto content =
        dynamic_cast<VxHWRackOverview&>(*view).ContentChange.Connect([&] { events.emplace_back("content"); });
    const auto selection =
        dynamic_cast<VxHWRackOverview&>(*view).SelChange.Connect([&] { events.emplace_back("selection"); });
    EXPECT_THAT(DrawnBy([&] {
                    Select({{0, 5}, {0, 1}, {0, 7}});
                }),
                ElementsAre(StartsWith("Text 4"), "Image PLACE_ACTIVE 0/4 style 0", StartsWith("Text 7"),
                            "Image PLACE_ACTIVE 0/7 style 4"));
    EXPECT_THAT(events, ElementsAre("selection", "content", "content", "content"));
    events.clear();
    view->Refresh();
    EXPECT_THAT(events, ElementsAre("content", "content", "content")) << "one for each selected place";

    station->Put(0, 2, "NO_PICTURE");
    TakeReports();
    EXPECT_THAT(DrawnBy([&] {
                    Select({{0, 2}, {0, 8}});
                }),
                Contains("Image PLACE_ACTIVE 0/8 style 4"))
        << "a place that cannot be drawn keeps no other from it";
    EXPECT_THAT(TakeReports(), ElementsAre(EndsWith(".moHWStation_RackPlaceChange")));
}

TEST_F(OverviewDrawing, WhatChangesWhileDrawingIsOffIsDrawnWhenItIsOnAgain)
{
    view->Refresh();
    station->drawable = false;
    Select({{0, 4}});
    EXPECT_THAT(DrawingOf(0, 7), IsEmpty());
    station->drawable = true;
    EXPECT_THAT(DrawingOf(0, 7), Contains("Image PLACE_ACTIVE 0/4 style 4"));
    EXPECT_THAT(DrawingOf(0, 7), Not(Contains(HasSubstr("0/4"))));
    handler->FocusPosition(5);
    station->drawable = false;
    EXPECT_THAT(DrawnBy([&] { handler->FocusPosition(8); }), Not(Contains(HasSubstr("Image PLACE"))));
    station->drawable = true;
    EXPECT_THAT(DrawingOf(0, 7), Contains("Image PLACE_ACTIVE 0/2 style 0")) << "it held the stem of the mark";

    // A drop ends the drag before drawing is on again.
    auto& dragged = dynamic_cast<IVxHWDragDropCtrlEvents&>(*view);
    controller->state = vxDragDropStateActive;
    dragged.StateChange(vxDragDropStateInactive);
    station->drawable = false;
    controller->state = vxDragDropStateInactive;
    EXPECT_THAT(DrawnBy([&] { dragged.StateChange(vxDragDropStateActive); }), IsEmpty());
    station->drawable = true;
    std::int32_t lEffect = 0;
    EXPECT_THAT(DrawnBy([&] { Mouse().OLEDragDrop(data, lEffect, 0, 0, 30, 340); }),
                Contains("Image PLACE_ACTIVE 0/1 style 0"));
}

TEST_F(OverviewDrawing, TheFocusMarkShowsWhetherThePictureHasTheKeyboard)
{
    handler->FocusPosition(8);
    view->VxHWStation(nullptr);
    EXPECT_THAT(DrawnBy([&] { Pic().Focus(true), Pic().Focus(false); }), IsEmpty());
    view->VxHWStation(station);
    EXPECT_THAT(DrawnBy([&] { Pic().Focus(true); }), Contains(AllOf(StartsWith("Line "), EndsWith(" text"))));
    EXPECT_THAT(DrawnBy([&] { handler->FocusPosition(9); }), Contains(EndsWith("5x2 text")));
    EXPECT_THAT(DrawnBy([&] { Pic().Focus(false); }), Contains(EndsWith("5x2 gray")));
}

TEST_F(OverviewDrawing, DiagnosticsDrawSymbolsOnModulesOnRefreshOnly)
{
    station->Put(0, 2, "CPU");
    diag->failures = {{"0/2", 1}, {"0/5", 1}};
    view->Style(vxStyleHWDiag);
    EXPECT_THAT(DrawingOf(0, 2), IsEmpty());
    for (const auto& [lState, name] : std::map<std::int32_t, std::string>{{10, "RUN"}, {11, "STOP"}, {12, "HOLD"}}) {
        diag->cpuStates = {{"0/2", lState}};
        const auto lines = DrawnBy([&] { view->Refresh(); });
        EXPECT_THAT(lines, IsSupersetOf({"Image IDB_DIAG_CPU_" + name + " 0/2 cpu style 1",
                                         std::string("Image IDB_DIAG_FAILURE 0/2 failure style 1")}));
        EXPECT_THAT(lines, Not(Contains(HasSubstr("0/5 failure")))) << "an empty place";
    }
}

TEST_F(OverviewDrawing, CompareDrawsTheResultOnEveryPlace)
{
    view->Style(vxStyleHWCompare);
    Lines expected;
    for (const char* symbol :
         {"EQUAL", "POTEQUAL", "NOMODULE", "NOMODULE", "MODULEDIFF", "MODULEDIFF", "PARAMDIFF", "PARAMDIFF"}) {
        const auto lResult = static_cast<std::int32_t>(expected.size()) + 1;
        const std::string key = "0/" + std::to_string(lResult);
        compare->results[key] = lResult;
        expected.push_back(std::string("Image IDB_COMP_").append(symbol).append(" " + key + " compare style 1"));
    }
    Lines lines = DrawnBy([&] { view->Refresh(); });
    EXPECT_THAT(lines, Contains("Image MODULE_DEFAULT 0/4 style 0").Times(1)) << "only in the other station";
    std::erase_if(lines, [](const auto& line) { return !line.starts_with("Image IDB_COMP_"); });
    EXPECT_EQ(lines, expected);
    EXPECT_THAT(DrawingOf(0, 4), IsEmpty());
    EXPECT_THAT(DrawnBy([&] { station->TotalRefresh.Raise(); }), IsEmpty());
}

/// What only racks one above the other have.
class CentralDrawing : public CentralOverview {
protected:
    std::string VisibleLinks() const
    {
        std::string visible;
        for (const auto* link : toolkit->shapes.at("fra_IMLink")) visible += link->Visible() ? "x" : "-";
        return visible;
    }
};

TEST_F(CentralDrawing, StationSetupDrawsTheRailsOfAllBandsOnTheStationsBackground)
{
    EXPECT_THAT(toolkit->imageLists.created, ElementsAre("IDB_CRX_ALL 18", "IDB_CRX_RACK 218"));
    EXPECT_EQ(site.font, "Tahoma 8.25");
    const std::pair<std::int32_t, const char*> backgrounds[] = {
        {0, "window"}, {1, "16772578"}, {7, "16772578"}}; // an unknown mode keeps the colour
    for (const auto& [lDisplayMode, color] : backgrounds) {
        station->Change([&](auto& plain) { plain.displayMode = lDisplayMode; });
        EXPECT_THAT(DrawnBy([&] { view->VxHWStation(station); }),
                    ElementsAre(std::string("BackColor ") + color, "Image RACK 11,305 style 1",
                                "Image RACK 11,213 style 1", "Image RACK 11,121 style 1", "Image RACK 11,29 style 1"));
    }
    EXPECT_THAT(DrawnBy([&] { view->VxHWStation(nullptr); }), ElementsAre("BackColor window"));
    EXPECT_THAT(DrawnBy([&] { toolkit->sysColorsChanged(); }), IsEmpty());
}

TEST_F(CentralDrawing, RackNumbersShowWhetherTheRackIsPresent)
{
    const auto drawingOf = [&](std::int32_t lState) {
        station->State(1, lState);
        return DrawnBy([&] { station->RackChange.Raise(station->Rack(1)); });
    };
    EXPECT_THAT(drawingOf(1), ElementsAre("Image RACKNR_ACTIVE 12,214 style 0", "Text 1 12,214 13x13 bold text"));
    EXPECT_THAT(drawingOf(0), ElementsAre("Image RACKNR_INACTIVE 12,214 style 0", "Text 1 12,214 13x13 gray"));
    EXPECT_THAT(drawingOf(2), IsEmpty());
    // Only empty places of the end close the rail.
    EXPECT_THAT(DrawingOf(3, 11), Contains("Image PLACE_ACTIVE_END 3/11 style 0"));
    station->Put(3, 11, "PS");
    EXPECT_THAT(DrawingOf(3, 11), Contains("Image MODULE_PS 3/11 style 0"));
}

TEST_F(CentralDrawing, FocusMarksAreFourTrianglesOrAnIBeam)
{
    const auto focus = [&](std::int32_t lPosition) { return DrawnBy([&] { handler->FocusPosition(lPosition); }); };
    const Lines triangles = focus(8);
    EXPECT_EQ(triangles.size(), 20U);
    EXPECT_THAT(triangles,
                IsSupersetOf({"Line 79,300 79,300 gray", "Line 75,304 79,304 gray", "Line 97,304 101,304 gray",
                              "Line 75,367 79,367 gray", "Line 97,371 97,371 gray"}));
    EXPECT_THAT(focus(2007), ElementsAre("Fill 11,300 218x6 window", "Fill 11,366 218x6 window",
                                         "Image RACK 11,305 style 1", "Fill 76,116 5x2 gray", "Fill 77,118 3x2 gray",
                                         "Line 78,120 78,183 gray", "Fill 77,184 3x2 gray", "Fill 76,186 5x2 gray"));
    EXPECT_THAT(focus(-1), ElementsAre("Fill 11,116 218x6 window", "Fill 11,182 218x6 window",
                                       "Fill 78,121 1x47 window", "Image RACK 11,121 style 1", StartsWith("Text 3"),
                                       EndsWith("2/3 style 0"), StartsWith("Text 4"), EndsWith("2/4 style 0")));
    focus(2023);
    EXPECT_THAT(focus(-1), Contains(EndsWith("2/11 style 0"))) << "the stem of the last gap lies on the last place";
}

TEST_F(CentralDrawing, TheArrowPointsFromTheFocusedPlaceToItsRow)
{
    const auto stub = [&] { return *toolkit->shapes.at("shp_Arrow").at(0); };
    const auto tip = [&] { return *toolkit->shapes.at("shp_End").at(3); };
    int focusEvents = 0;
    const auto focus = dynamic_cast<VxHWRackOverview&>(*view).FocusChange.Connect([&] { ++focusEvents; });
    handler->FocusPosition(2008);
    EXPECT_TRUE(stub().Visible());
    EXPECT_EQ(stub().Bounds(), MakeRect(4 + 25 + 54 + 7, 92 + 29 - 10, 3, 10));
    EXPECT_EQ(tip().Bounds(), MakeRect(258, 7 + 45 + 41, 2, 1));
    handler->FocusPosition(2009);
    EXPECT_FALSE(stub().Visible());
    EXPECT_EQ(focusEvents, 2);
    view->Style(vxStyleHWCompare);
    handler->FocusPosition(2008);
    EXPECT_EQ(tip().Bounds().top, 7 + 45 + 61);
    site.Resize(6000, 6000);
    EXPECT_EQ(tip().Bounds().right, 400);
    site.Resize(100, 100);
    RecordingControl small(log, MakeRect(0, 0, 20, 20));
    const auto made = MakeView(small);
    for (const RecordingControl* control : {&site, &small})
        EXPECT_EQ((Size{control->Width(), control->Height()}), (Size{3525, 5880}));
    EXPECT_EQ(toolkit->controls.at("arw_Arrow")->bounds, MakeRect(0, 0, 235, 392));
    EXPECT_EQ(tip().Bounds().right, 235) << "it keeps its length at the smallest width";
    view->VxHWStation(nullptr);
    EXPECT_FALSE(stub().Visible());
}

TEST_F(CentralDrawing, LinksJoinRacksThatBothHaveAnInterfaceModule)
{
    EXPECT_EQ(VisibleLinks(), "---");
    EXPECT_EQ(toolkit->shapes.at("fra_IMLink").at(2)->Bounds(), MakeRect(78, 90, 3, 32));
    station->Put(1, 3, "IM");
    station->Put(2, 3, "IM");
    EXPECT_EQ(VisibleLinks(), "-x-");
    station->Empty(1, 3);
    EXPECT_EQ(VisibleLinks(), "---");
    station->Put(3, 3, "IM");
    EXPECT_EQ(VisibleLinks(), "--x");
    view->VxHWStation(MakeStation(EmptyStation(0, 4, 2)));
    view->Refresh();
    EXPECT_EQ(VisibleLinks(), "---") << "it joined modules of another station";
}

TEST_F(CentralDrawing, SmallAndHugeStationsDrawWhatFits)
{
    const auto refreshOf = [&](std::size_t racks, std::size_t places) {
        station = MakeStation(EmptyStation(0, racks, places));
        handler->VxHWStation(station);
        view->VxHWStation(station);
        const auto lines = DrawnBy([&] { view->Refresh(); });
        return std::count_if(lines.begin(), lines.end(), [](const auto& line) { return line.starts_with("Image"); });
    };
    EXPECT_EQ(refreshOf(1, 2), 3);
    EXPECT_EQ(refreshOf(6, 15), 4 * 12);
    handler->FocusPosition(5 * 1000 + 30);
    handler->FocusPosition(5 * 1000 + 31);
    Select({{5, 15}, {0, 12}});
    EXPECT_THAT(Pic().TakeLines(), IsEmpty());
    refreshOf(1, 2);
    const auto tooltipAt = [&](std::int32_t x, std::int32_t y) {
        return toolkit->tooltips.Hover(Pic().hWnd(), Point{x, y}).text;
    };
    EXPECT_EQ(tooltipAt(50, 340), "T6100");
    EXPECT_EQ(tooltipAt(90, 340), "") << "the rail is longer than the rack";
    EXPECT_EQ(tooltipAt(50, 150), "") << "a rail without a rack";
}

TEST_F(CentralDrawing, CoordinatesAreThoseOfTheControl)
{
    const auto pointOf = [&](std::int32_t lPosition) {
        Point at;
        dynamic_cast<VxHWRackOverview&>(*view).CoordinatesByPosition(lPosition, at.x, at.y);
        return at;
    };
    EXPECT_EQ(pointOf(-1), (Point{4, 0}));
    EXPECT_EQ(pointOf(2023), (Point{227, 152}));
    const auto positionAt = [&](std::int32_t x, std::int32_t y) {
        std::int32_t lPosition = 0;
        dynamic_cast<VxHWRackOverview&>(*view).PositionByCoordinates(x, y, lPosition);
        return lPosition;
    };
    EXPECT_EQ(positionAt(227, 152), 2023);
    EXPECT_EQ(positionAt(3, 152), -1);
}

} // namespace
} // namespace zqbchwcx::testing
