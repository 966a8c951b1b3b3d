#include "tests/views/OverviewFixture.h"
#include "zqbchwcx/reference/model/contract/Module.h"
#include "zqbchwcx/views/overview/GroupFrame.h"

namespace zqbchwcx::testing {
namespace {

using namespace ::testing;

class OverviewDrawingTest : public OverviewFixture {
protected:
    /// What the event draws.
    template <class Event>
    Lines DrawnBy(Event event)
    {
        Pic().TakeLines();
        event();
        return Pic().TakeLines();
    }
    bool IsLinkVisible(std::size_t index) const { return toolkit->shapes.at("fra_IMLink").at(index)->Visible(); }
};

TEST_F(OverviewDrawingTest, StationSetupDrawsTheRailsOfAllBandsOnTheStationsBackground)
{
    EXPECT_THAT(toolkit->imageLists.created, ElementsAre("IDB_CRX_ALL 18", "IDB_CRX_RACK 218"));
    EXPECT_EQ(site.font, "Tahoma 8.25");
    const std::pair<std::int32_t, const char*> backgrounds[] = {
        {0, "window"}, {1, "16772578"}, {7, "16772578"}}; // an unknown mode keeps the colour
    for (const auto& [lDisplayMode, color] : backgrounds) {
        station->Change([&](auto& plain) { plain.displayMode = lDisplayMode; });
        EXPECT_THAT(DrawnBy([&] { view->VxHWStation(station); }),
                    ElementsAre(std::string("BackColor ") + color, "Image IDB_CRX_RACK 11,305 style 1",
                                "Image IDB_CRX_RACK 11,213 style 1", "Image IDB_CRX_RACK 11,121 style 1",
                                "Image IDB_CRX_RACK 11,29 style 1"));
    }
    EXPECT_THAT(DrawnBy([&] { view->VxHWStation(nullptr); }), ElementsAre("BackColor window"));
    EXPECT_THAT(DrawnBy([&] { toolkit->sysColorsChanged(); }), IsEmpty());
}

TEST_F(OverviewDrawingTest, LockingChangesTheBackgroundAndDrawsAnew)
{
    const auto lock = [&] { view->Locked(true); };
    const auto lines = DrawnBy(lock);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.front(), "BackColor " + std::to_string(vxColorLight3D));
    EXPECT_THAT(lines, Contains("Image IDB_CRX_PLACE_ACTIVE 25,306 style 0"));
    EXPECT_THAT(DrawnBy(lock), IsEmpty());
    toolkit->desktop.systemColors[vxColorLight3D] = toolkit->desktop.systemColors[vxColorButtonFace];
    EXPECT_EQ(DrawnBy([&] { toolkit->sysColorsChanged(); }).front(),
              "BackColor " + std::to_string(G_Rgb(234, 232, 228)));
}

TEST_F(OverviewDrawingTest, PlacesShowTheirUsabilityAndTheDrag)
{
    struct Case {
        std::int32_t usability;
        bool drag;
        std::string number;
        std::string picture;
    };
    const Case cases[] = {
        {-1, false, "Fill 82,339 13x13 window", "INACTIVE"}, {-1, true, "Fill 82,339 13x13 window", "INACTIVE_NODROP"},
        {0, false, "Text 4 82,339 13x13 gray", "INACTIVE"},  {0, true, "Text 4 82,339 13x13 gray", "INACTIVE_NODROP"},
        {1, false, "Text 4 82,339 13x13 text", "ACTIVE"},    {1, true, "Text 4 82,339 13x13 text", "NODROP"},
    };
    for (const auto& c : cases) {
        station->Usability(0, 4, c.usability);
        controller->state = c.drag ? vxDragDropStateActive : vxDragDropStateInactive;
        EXPECT_THAT(DrawingOf(0, 4), ElementsAre(c.number, "Image IDB_CRX_PLACE_" + c.picture + " 79,306 style 0"));
    }
    controller->dropPlace = "0/4";
    EXPECT_THAT(DrawingOf(0, 4), Contains("Image IDB_CRX_PLACE_DROP 79,306 style 0"));
    station->Usability(0, 4, 5);
    EXPECT_THAT(DrawingOf(0, 4), IsEmpty());

    // Only empty places of the end close the rail; the drag leaves modules alone.
    EXPECT_THAT(DrawingOf(3, 11),
                ElementsAre("Text 11 208,63 13x13 text", "Image IDB_CRX_PLACE_NODROP_END 205,30 style 0"));
    station->Put(3, 11, "PS");
    EXPECT_THAT(DrawingOf(3, 11), ElementsAre("Text 11 208,63 13x13 text", "Image IDB_CRX_MODULE_PS 205,30 style 0"));
}

TEST_F(OverviewDrawingTest, RackNumbersShowWhetherTheRackIsPresent)
{
    const auto drawingOf = [&](std::int32_t lState) {
        station->State(1, lState);
        return DrawnBy([&] { station->RackChange.Raise(station->Rack(1)); });
    };
    EXPECT_THAT(drawingOf(1),
                ElementsAre("Image IDB_CRX_RACKNR_ACTIVE 12,214 style 0", "Text 1 12,214 13x13 bold text"));
    EXPECT_THAT(drawingOf(0), ElementsAre("Image IDB_CRX_RACKNR_INACTIVE 12,214 style 0", "Text 1 12,214 13x13 gray"));
    EXPECT_THAT(drawingOf(2), IsEmpty());
}

TEST_F(OverviewDrawingTest, ModulePicturesComeFromTheListOrFromAFileThatIsLoadedOnce)
{
    services.host->settings[{"Software\\Halvar\\Quillon_Ed\\General\\Paths", "DataDirectory"}] = "C:\\Data";
    auto& files = *toolkit->imageLists.files;
    files.existing = {"C:\\Data\\HWPics\\PUMP.bmp"};
    station->Put(0, 5, "Pump");
    station->Put(0, 6, "NoSuchFile");
    station->Put(0, 7, "CPU");
    for (int i = 0; i < 2; ++i) {
        EXPECT_THAT(DrawingOf(0, 5), Contains(HasSubstr("Image PUMP ")));
        EXPECT_THAT(DrawingOf(0, 6), Contains(HasSubstr("Image IDB_CRX_MODULE_DEFAULT ")));
        EXPECT_THAT(DrawingOf(0, 7), Contains(HasSubstr("Image IDB_CRX_MODULE_CPU ")));
    }
    EXPECT_THAT(files.asked, ElementsAre("C:\\Data\\HWPics\\PUMP.bmp", "C:\\Data\\HWPics\\NOSUCHFILE.bmp"));

    station->Put(0, 8, "idb_of_another_list");
    TakeReports();
    EXPECT_THAT(DrawingOf(0, 8), Not(Contains(HasSubstr("Image "))));
    EXPECT_THAT(TakeReports(), ElementsAre("zqbchwcx.VxHWRackOverview.moHWStation_RackPlaceChange"));
    EXPECT_EQ(files.asked.size(), 2U) << "a built-in picture was looked for among the files";
}

TEST_F(OverviewDrawingTest, GroupFramesFollowTheModulesAndTheirSelection)
{
    station->Put(0, 4, "IO_DIGITAL3");
    const auto frameOf = [&](std::int32_t lPlace) { return DrawingOf(0, lPlace).back(); };
    EXPECT_EQ(frameOf(4), "Image IDB_CRX_FRAME_LEFT 79,306 style 1");
    EXPECT_EQ(frameOf(5), "Image IDB_CRX_FRAME_MID 97,306 style 1");
    EXPECT_EQ(frameOf(6), "Image IDB_CRX_FRAME_RIGHT 115,306 style 1");

    EXPECT_THAT(DrawnBy([&] {
                    Select({{0, 5}});
                }),
                ElementsAre("Text 5 100,339 13x13 text", "Image IDB_CRX_MODULE_IO_DIGITAL 97,306 style 4",
                            "Image IDB_CRX_FRAME_MID 97,306 style 5", "Image IDB_CRX_FRAME_LEFT 79,306 style 5",
                            "Image IDB_CRX_FRAME_MID 97,306 style 5", "Image IDB_CRX_FRAME_RIGHT 115,306 style 5"));
    EXPECT_THAT(DrawnBy([&] { Select({}); }),
                ElementsAre(HasSubstr("Text 5"), EndsWith("style 0"), EndsWith("97,306 style 1"),
                            EndsWith("79,306 style 1"), EndsWith("97,306 style 1"), EndsWith("115,306 style 1")));

    // A model's parent of one place, which the reference model does not have.
    struct OnlyMember : reference::Module {
        using Module::Module;
        std::int32_t PlaceCount() const override { return 1; }
    };
    const auto oMember = std::make_shared<OnlyMember>(std::make_shared<reference::ModuleBody>(), 1);
    EXPECT_EQ(G_GroupFrameKey(G_CentralPlaceStyle, *oMember, oMember), "IDB_CRX_FRAME_TOTAL");
}

TEST_F(OverviewDrawingTest, ASelectionChangeDrawsOnlyWhatChangedAndTellsIt)
{
    Select({{0, 4}, {0, 5}, {1, 1}});
    Lines events;
    const auto content = view->ContentChange.Connect([&] { events.emplace_back("content"); });
    const auto selection = view->SelChange.Connect([&] { events.emplace_back("selection"); });
    EXPECT_THAT(DrawnBy([&] {
                    Select({{0, 5}, {1, 1}, {1, 2}});
                }),
                ElementsAre(StartsWith("Text 4"), "Image IDB_CRX_PLACE_ACTIVE 79,306 style 0", StartsWith("Text 2"),
                            "Image IDB_CRX_PLACE_ACTIVE 43,214 style 4"));
    EXPECT_THAT(events, ElementsAre("selection", "content", "content", "content"));

    events.clear();
    view->Refresh();
    EXPECT_THAT(events, ElementsAre("content", "content", "content")) << "one for each selected place";
}

TEST_F(OverviewDrawingTest, WhatChangesWhileDrawingIsOffIsDrawnWhenItIsOnAgain)
{
    view->Refresh();
    station->drawable = false;
    Select({{0, 4}});
    EXPECT_THAT(DrawingOf(0, 9), IsEmpty());
    station->drawable = true;
    EXPECT_THAT(DrawingOf(0, 9), Contains("Image IDB_CRX_PLACE_ACTIVE 79,306 style 4"));
    EXPECT_THAT(DrawingOf(0, 9), Not(Contains(HasSubstr("79,306"))));
    handler->FocusPosition(1009);
    station->drawable = false;
    EXPECT_THAT(DrawnBy([&] { handler->FocusPosition(8); }), Not(Contains(HasSubstr("Image IDB_CRX_PLACE"))));
    station->drawable = true;
    EXPECT_THAT(DrawingOf(0, 9), Contains("Image IDB_CRX_PLACE_ACTIVE 79,214 style 0"))
        << "it held the stem of the mark";

    // A drop ends the drag before drawing is on again.
    controller->state = vxDragDropStateActive;
    view->StateChange(vxDragDropStateInactive);
    station->drawable = false;
    controller->state = vxDragDropStateInactive;
    EXPECT_THAT(DrawnBy([&] { view->StateChange(vxDragDropStateActive); }), IsEmpty());
    station->drawable = true;
    std::int32_t lEffect = 0;
    EXPECT_THAT(DrawnBy([&] { Mouse().OLEDragDrop(data, lEffect, 0, 0, 30, 340); }),
                Contains("Image IDB_CRX_PLACE_ACTIVE 25,306 style 0"));
}

TEST_F(OverviewDrawingTest, FocusMarksAreFourTrianglesOrAnIBeam)
{
    const auto focus = [&](std::int32_t lPosition) { return DrawnBy([&] { handler->FocusPosition(lPosition); }); };
    const Lines triangles = focus(8);
    EXPECT_EQ(triangles.size(), 20U);
    EXPECT_THAT(triangles,
                IsSupersetOf({"Line 79,300 79,300 gray", "Line 75,304 79,304 gray", "Line 97,304 101,304 gray",
                              "Line 75,367 79,367 gray", "Line 97,371 97,371 gray"}));
    EXPECT_THAT(focus(2007),
                ElementsAre("Fill 11,300 218x6 window", "Fill 11,366 218x6 window", "Image IDB_CRX_RACK 11,305 style 1",
                            "Fill 76,116 5x2 gray", "Fill 77,118 3x2 gray", "Line 78,120 78,183 gray",
                            "Fill 77,184 3x2 gray", "Fill 76,186 5x2 gray"));
    EXPECT_THAT(focus(-1),
                ElementsAre("Fill 11,116 218x6 window", "Fill 11,182 218x6 window", "Fill 78,121 1x47 window",
                            "Image IDB_CRX_RACK 11,121 style 1", StartsWith("Text 3"), EndsWith("61,122 style 0"),
                            StartsWith("Text 4"), EndsWith("79,122 style 0")));
    focus(2023);
    EXPECT_THAT(focus(-1), Contains(EndsWith("205,122 style 0"))) << "the stem of the last gap lies on the last place";
}

TEST_F(OverviewDrawingTest, TheFocusMarkShowsWhetherThePictureHasTheKeyboard)
{
    handler->FocusPosition(8);
    view->VxHWStation(nullptr);
    EXPECT_THAT(DrawnBy([&] { Pic().Focus(true), Pic().Focus(false); }), IsEmpty());
    view->VxHWStation(station);
    EXPECT_THAT(DrawnBy([&] { Pic().Focus(true); }), Contains("Line 79,300 79,300 text"));
    EXPECT_THAT(DrawnBy([&] { handler->FocusPosition(9); }), Contains(EndsWith("5x2 text")));
    EXPECT_THAT(DrawnBy([&] { Pic().Focus(false); }), Contains(EndsWith("5x2 gray")));
}

TEST_F(OverviewDrawingTest, TheArrowPointsFromTheFocusedPlaceToItsRow)
{
    const auto stub = [&] { return *toolkit->shapes.at("shp_Arrow").at(0); };
    const auto tip = [&] { return *toolkit->shapes.at("shp_End").at(3); };
    int focusEvents = 0;
    const auto focus = view->FocusChange.Connect([&] { ++focusEvents; });
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
    view->VxHWStation(nullptr);
    EXPECT_FALSE(stub().Visible());
}

TEST_F(OverviewDrawingTest, DiagnosticsDrawSymbolsOnModulesOnRefreshOnly)
{
    station->Put(0, 2, "CPU");
    diag->failures = {{"0/2", 1}, {"0/5", 1}};
    view->Style(vxStyleHWDiag);
    EXPECT_THAT(DrawingOf(0, 2), IsEmpty());
    for (const auto& [lState, name] : std::map<std::int32_t, std::string>{{10, "RUN"}, {11, "STOP"}, {12, "HOLD"}}) {
        diag->cpuStates = {{"0/2", lState}};
        const auto lines = DrawnBy([&] { view->Refresh(); });
        EXPECT_THAT(lines, Contains("Image IDB_DIAG_CPU_" + name + " 46,309 style 1"));
        EXPECT_THAT(lines, Contains("Image IDB_DIAG_FAILURE 46,351 style 1"));
        EXPECT_THAT(lines, Not(Contains("Image IDB_DIAG_FAILURE 100,351 style 1"))) << "an empty place";
    }
}

TEST_F(OverviewDrawingTest, CompareDrawsTheResultOnEveryPlace)
{
    view->Style(vxStyleHWCompare);
    Lines expected;
    for (const char* symbol :
         {"EQUAL", "POTEQUAL", "NOMODULE", "NOMODULE", "MODULEDIFF", "MODULEDIFF", "PARAMDIFF", "PARAMDIFF"}) {
        const auto lResult = static_cast<std::int32_t>(expected.size()) + 1;
        compare->results["1/" + std::to_string(lResult)] = lResult;
        expected.push_back(std::string("Image IDB_COMP_") + symbol + " " + std::to_string(8 + 18 * lResult) +
                           ",257 style 1");
    }
    const Lines lines = DrawnBy([&] { view->Refresh(); });
    Lines symbols;
    std::copy_if(lines.begin(), lines.end(), std::back_inserter(symbols),
                 [](const auto& line) { return line.starts_with("Image IDB_COMP_"); });
    EXPECT_EQ(symbols, expected);
    EXPECT_THAT(lines, Contains("Image IDB_CRX_MODULE_DEFAULT 79,214 style 0").Times(1)) << "only in the other station";
    EXPECT_THAT(DrawingOf(1, 4), IsEmpty());
    EXPECT_THAT(DrawnBy([&] { station->TotalRefresh.Raise(); }), IsEmpty());
    EXPECT_THAT(DrawnBy([&] { view->StateChange(vxDragDropStateInactive); }), Not(IsEmpty()));
}

TEST_F(OverviewDrawingTest, LinksJoinRacksThatBothHaveAnInterfaceModule)
{
    EXPECT_FALSE(IsLinkVisible(0) || IsLinkVisible(1) || IsLinkVisible(2));
    EXPECT_EQ(toolkit->shapes.at("fra_IMLink").at(2)->Bounds(), MakeRect(78, 90, 3, 32));
    station->Put(1, 3, "IM");
    station->Put(2, 3, "IM");
    DrawingOf(2, 3);
    EXPECT_TRUE(IsLinkVisible(1) && !IsLinkVisible(0) && !IsLinkVisible(2));
    station->Empty(1, 3);
    DrawingOf(1, 3);
    EXPECT_FALSE(IsLinkVisible(1));
    station->Put(3, 3, "IM");
    DrawingOf(3, 3);
    EXPECT_TRUE(IsLinkVisible(2));
    view->VxHWStation(MakeStation(EmptyStation(0, 4, 2)));
    view->Refresh();
    EXPECT_FALSE(IsLinkVisible(2)) << "it joined modules of another station";
}

TEST_F(OverviewDrawingTest, SmallAndHugeStationsDrawWhatFits)
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

TEST_F(OverviewDrawingTest, APlaceThatCannotBeDrawnKeepsNoOtherFromIt)
{
    station->Put(0, 2, "NO_PICTURE");
    TakeReports();
    station->Put(0, 4, "IO_DIGITAL3");
    const Lines lines = DrawnBy([&] { Select({{0, 2}, {0, 5}, {1, 9}}); });
    EXPECT_THAT(
        lines, IsSupersetOf({"Image IDB_CRX_FRAME_LEFT 79,306 style 5", "Image IDB_CRX_PLACE_ACTIVE 169,214 style 4"}));
    EXPECT_THAT(TakeReports(), ElementsAre("zqbchwcx.VxHWRackOverview.moHWStation_RackPlaceChange"));
    TakeReports();
}

TEST_F(OverviewDrawingTest, CoordinatesAreThoseOfTheControl)
{
    std::int32_t x = 0;
    std::int32_t y = 0;
    view->CoordinatesByPosition(-1, x, y);
    EXPECT_EQ((Point{x, y}), (Point{4, 0}));
    view->CoordinatesByPosition(2023, x, y);
    EXPECT_EQ((Point{x, y}), (Point{227, 152}));
    std::int32_t lPosition = 0;
    view->PositionByCoordinates(x, y, lPosition);
    EXPECT_EQ(lPosition, 2023);
    view->PositionByCoordinates(3, y, lPosition);
    EXPECT_EQ(lPosition, -1);

    site.Resize(100, 100);
    EXPECT_EQ(site.Width(), 3525);
    EXPECT_EQ(site.Height(), 5880);
    EXPECT_EQ(toolkit->controls.at("arw_Arrow")->bounds, MakeRect(0, 0, 235, 392));
}

} // namespace
} // namespace zqbchwcx::testing
