#include "tests/views/OverviewFixture.h"
#include "zqbchwcx/reference/model/contract/Modules.h"

namespace zqbchwcx::testing {
namespace {

using namespace ::testing;

constexpr std::int16_t Left = vxButtonLeft;
constexpr std::int16_t Right = vxButtonRight;
constexpr std::int16_t Middle = vxButtonMiddle;

/// The user of an overview.
template <class Overview>
class UserOf : public Overview {
protected:
    UserOf() { this->Pic().TakeLines(); }

    void Press(Point at, std::int16_t nButton = Left) { this->Mouse().MouseDown(nButton, 0, X(at), Y(at)); }
    void Move(Point at, std::int16_t nButton = Left) { this->Mouse().MouseMove(nButton, 0, X(at), Y(at)); }
    void Release(Point at, std::int16_t nButton = Left) { this->Mouse().MouseUp(nButton, 0, X(at), Y(at)); }
    static float X(Point at) { return static_cast<float>(at.x); }
    static float Y(Point at) { return static_cast<float>(at.y); }
    void Key(std::int16_t nKeyCode, std::int16_t nShift = 0)
    {
        this->site.User().KeyDown(nKeyCode, nShift);
        this->site.User().KeyUp(nKeyCode, nShift);
    }
    int DragCount() const
    {
        const Lines& lines = this->Pic().lines;
        return static_cast<int>(std::count(lines.begin(), lines.end(), "OLEDrag"));
    }
    std::string TooltipAt(std::int32_t lPosition) const
    {
        return this->toolkit->tooltips.Hover(this->Pic().hWnd(), this->CenterOf(lPosition)).text;
    }
    /// Without it, a distributed station takes no other module.
    void PutHead()
    {
        if (!this->variant.IsCentral()) this->station->Put(0, 1, "HEAD2");
    }
    void SetStation(bool bReadOnly, std::int32_t lDisplayMode)
    {
        this->station->Change([&](auto& plain) { plain.readOnly = bReadOnly, plain.displayMode = lDisplayMode; });
    }

    RecordingControl otherSite{this->log}; ///< for a second view
};

class OverviewInput : public UserOf<AnyOverview> {};
INSTANTIATE_TEST_SUITE_P(Every, OverviewInput, ValuesIn(ViewVariants), PrintToStringParamName());

TEST_P(OverviewInput, MouseEventsBecomePositions)
{
    const Point one = CenterOf(2);
    Mouse().MouseDown(Left, vxShiftMask, X(one) - 0.4F, Y(one) + 0.5F);
    Mouse().MouseUp(Left, vxCtrlMask, X(CenterOf(3)), Y(one));
    Mouse().DblClick();
    Press({-1, 1}, Middle);
    Release(one, Middle);
    EXPECT_THAT(controller->Take(),
                ElementsAre("MouseDown 2 1 1", "MouseUp 3 1 2", "DblClick 2", "MouseDown -1 4 0", "MouseUp 2 4 0"));
    EXPECT_THAT(Menu().shown, IsEmpty());
}

TEST_P(OverviewInput, ADragStartsAtTheThresholdOfTheDesktop)
{
    const auto madeWithWidth = [&](const char* width) {
        services.host->settings = {{{"Control Panel\\Desktop", "DragWidth"}, width},
                                   {{"Control Panel\\Desktop", "DragHeight"}, "3"}};
        return MakeView(otherSite);
    };
    /// How many drags a press and two moves by that much start. A release of the middle button ends no press.
    const auto drags = [&](std::int32_t dx, std::int32_t dy, std::int16_t nButton = Left) {
        const Point at = CenterOf(2);
        Pic().TakeLines();
        Press(at, nButton);
        Release(at, Middle);
        Move({at.x + dx, at.y + dy}, 0);
        EXPECT_EQ(DragCount(), 0) << "no button held";
        for (int i = 0; i < 2; ++i) Move({at.x + dx, at.y + dy}, nButton);
        Release(at, nButton);
        Move({at.x + 60, at.y + 50}, nButton);
        return DragCount();
    };
    controller->dragPosition = 2;
    view = madeWithWidth("6");
    EXPECT_EQ(drags(5, 2), 0);
    EXPECT_THAT((std::vector{drags(6, 0), drags(-6, 0), drags(0, 3), drags(0, -3), drags(9, 0, Right)}), Each(1));
    EXPECT_EQ(drags(60, 0, Middle), 0);
    controller->dragPosition = 4;
    EXPECT_EQ(drags(60, 0), 0) << "a position without drag";

    controller->dragPosition = 2;
    view = madeWithWidth("wide");
    EXPECT_THAT(services.host->reports.at(0).description, AllOf(HasSubstr("DragWidth"), HasSubstr("wide")));
    EXPECT_THAT(TakeReports(), ElementsAre(EndsWith(".P_ReadDragDelayFromRegistry")));
    EXPECT_EQ(drags(3, 0), 0);
    Pic().onDrag = [&] { Move({90, 380}); }; // which starts no second one
    EXPECT_EQ(drags(4, 0), 1) << "the usual 4 instead";
}

TEST_P(OverviewInput, DragEventsReachTheControllerWithTheirPosition)
{
    const Point one = CenterOf(2);
    std::int32_t lEffect = 3;
    Mouse().OLEStartDrag(data, lEffect);
    Mouse().OLESetData(data, 55);
    lEffect = 3;
    Mouse().OLEDragOver(data, lEffect, 1, 2, X(one), Y(one), vxDragEnter);
    EXPECT_EQ(lEffect, 1);
    lEffect = 3;
    Mouse().OLEDragDrop(data, lEffect, 1, 2, X(CenterOf(3)), Y(one));
    EXPECT_EQ(lEffect, 2);
    Mouse().OLECompleteDrag(lEffect);
    lEffect = 3;
    site.User().OLEDragOver(data, lEffect, 0, 0, 250, 10, vxDragOver);
    EXPECT_THAT(controller->Take(), ElementsAre("OLEStartDrag", "OLESetData 55", "OLEDragOver 2 3 1 2 0",
                                                "OLEDragDrop 3 3 1 2", "OLECompleteDrag 2", "OLEDragOver -1 3 0 0 2"));
}

TEST_P(OverviewInput, TheDragPointerShowsTheModulesUnderTheMouse)
{
    station->Put(0, 4, "AI2");
    auto modules = std::make_shared<reference::Modules>(SampleContext());
    for (const std::int32_t lPlace : {4, 5, 1}) modules->Add(station->Module(0, lPlace), true);
    controller->dragModules = modules;
    std::int32_t lEffect = 3;
    Point at = CenterOf(6);
    /// Whether the pointer is there afterwards.
    const auto over = [&](std::int16_t nState) {
        Mouse().OLEDragOver(data, lEffect, 0, 0, X(at), Y(at), nState);
        return DragPic().Visible();
    };
    const auto bounds = [&] {
        const Size size = variant.style.place;
        const Point origin = PictureOrigin();
        return MakeRect(origin.x + at.x - variant.style.dragged.x, origin.y + at.y - variant.style.dragged.y,
                        3 * size.width, size.height);
    };
    EXPECT_FALSE(over(vxDragEnter)) << "the drag carries nothing for this view";
    controller->state = vxDragDropStateActive;
    EXPECT_TRUE(over(vxDragOver));
    EXPECT_EQ(DragPic().Bounds(), bounds());
    const std::map<std::string, Lines> drawn{
        {"Central",
         {"MODULE_DEFAULT 0,0 style 0", "FRAME_LEFT 0,0 style 1", "MODULE_DEFAULT 18,0 style 0",
          "FRAME_RIGHT 18,0 style 1", "PLACE_ACTIVE 36,0 style 0"}},
        {"Rail",
         {"PLACEFRAME_ACTIVE 0,0 style 0", "MODULE_SMTYPE1 0,0 style 0", "PLACEFRAME_ACTIVE 22,0 style 0",
          "MODULE_SMTYPE1 22,0 style 0", "PLACEFRAME_ACTIVE 44,0 style 0", "PLACE_ACTIVE 44,0 style 0"}},
        {"SelfContained", {"MODULE_GAMMA 0,0 style 0", "MODULE_GAMMA 22,0 style 0", "PLACE_ACTIVE 44,0 style 0"}}};
    Lines expected{"BackColor window"};
    for (const auto& image : drawn.at(variant.name)) expected.push_back("Image " + image);
    EXPECT_EQ(InWords(DragPic().TakeLines()), expected);
    at.x += 10;
    EXPECT_TRUE(over(vxDragOver));
    EXPECT_EQ(DragPic().Bounds(), bounds());
    EXPECT_THAT(DragPic().TakeLines(), IsEmpty());
    EXPECT_FALSE(over(vxDragLeave));
    EXPECT_TRUE(over(vxDragEnter));
    Mouse().OLEDragDrop(data, lEffect, 0, 0, X(at), Y(at));
    EXPECT_FALSE(DragPic().Visible());
    EXPECT_TRUE(over(vxDragEnter));
    Mouse().OLECompleteDrag(lEffect);
    EXPECT_FALSE(DragPic().Visible());
    modules->Clear();
    EXPECT_FALSE(over(vxDragEnter));
}

TEST_P(OverviewInput, KeysReachTheKeyController)
{
    for (const std::int16_t nKey :
         std::vector<std::int16_t>{vxKeySpace, vxKeyDelete, vxKeyClear, vxKeyReturn, vxKeyF10, 65})
        Key(nKey, vxCtrlMask);
    EXPECT_THAT(controller->Take(), ElementsAre("SpaceKeyDown 2", "Delete", "Delete", "KeyReturn"));
}

TEST_P(OverviewInput, TheMenuEnablesWhatTheSelectionAndTheStationAllow)
{
    PutHead();
    const auto shown = [&](std::int16_t nButton = Right) {
        Menu().shown.clear();
        Release(CenterOf(2), nButton);
        return Menu().shown.empty() ? std::string() : Menu().shown.back();
    };
    EXPECT_EQ(shown(), "");
    EXPECT_THAT(controller->Take(), ElementsAre("MouseUp 2 2 0"));
    station->Put(0, 4, "DO");
    Select({{0, 3}, {0, 4}});
    EXPECT_EQ(shown(), "at mouse Cut Copy Delete");
    station->Put(0, 4, "DI");
    EXPECT_EQ(shown(), "at mouse EditModuleParams* Cut Copy Delete");
    SetStation(true, vxDisplayModeOffline);
    EXPECT_EQ(shown(), "at mouse EditModuleParams* Copy");
    SetStation(true, vxDisplayModeOnline1);
    EXPECT_EQ(shown(), "at mouse EditModuleParams*");
    SetStation(false, vxDisplayModeOffline);

    handler->SetSelectionToClipboard();
    handler->FocusPosition(6);
    Select({});
    EXPECT_EQ(shown(), "") << "a place is taken";
    handler->FocusPosition(12);
    EXPECT_EQ(shown(), "at mouse Paste");
    EXPECT_EQ(shown(Left), "");
    SetStation(true, vxDisplayModeOffline);
    EXPECT_EQ(shown(), "");
    SetStation(false, vxDisplayModeOffline);
    view->Style(vxStyleHWDiag);
    EXPECT_EQ(shown(), "");
}

TEST_P(OverviewInput, MenuCommandsCallTheKeyController)
{
    PutHead();
    station->Put(0, 4, "DI");
    handler->FocusPosition(12);
    Select({{0, 4}});
    handler->SetSelectionToClipboard();
    services.host->texts = {{57635, "Ausschneiden"}};
    Lines captions;
    for (const auto& item : Menu().items) {
        Menu().choose = item.name;
        Key(vxKeyApps);
        captions.push_back(item.caption);
    }
    EXPECT_THAT(controller->Take(), ElementsAre("KeyReturn", "Cut", "Copy", "Paste", "Delete"));
    EXPECT_THAT(captions, ElementsAre("T41001", "-", "Ausschneiden", "T57634", "T57637", "-", "T57632"));
    // What a command selects while the model lets nothing be drawn comes as soon as it does.
    controller->onPaste = [&] {
        station->drawable = false;
        Select({{0, 7}});
        station->drawable = true;
    };
    Menu().choose = "pmnu_Paste";
    EXPECT_THAT(DrawnBy([&] { Release(CenterOf(10), Right); }), Contains(MatchesRegex(".* 0/7 style (4|5|36)")));
}

TEST_P(OverviewInput, ConfigurationTooltips)
{
    station->Put(0, 4, "DI");
    station->Usability(0, 6, vxPlaceInactive);
    const std::string module = station->Model().ModuleTooltip(station->Module(0, 4));
    const std::string inactive = station->Model().EmptyPlaceTooltip(station->Place(0, 6));
    EXPECT_EQ(toolkit->tooltips.Hover(Pic().hWnd(), CenterOf(8)).area, RectOf(0, 4));
    const auto texts = [&] { return Lines{TooltipAt(8), TooltipAt(10), TooltipAt(12), TooltipAt(9), TooltipAt(0)}; };
    EXPECT_EQ(texts(), (Lines{module, "T6100", inactive, "", ""}));
    view->Locked(true);
    EXPECT_EQ(texts(), (Lines{module, "", "", "", ""}));
    controller->state = vxDragDropStateActive;
    EXPECT_EQ(TooltipAt(8), "");
    view->VxHWStation(nullptr);
    EXPECT_FALSE(toolkit->tooltips.IsConnected());
}

TEST_P(OverviewInput, DiagnosticsTooltips)
{
    view->Style(vxStyleHWDiag);
    station->Put(0, 4, "CPU");
    diag->diagStates = {{"0/4", 1}, {"0/4", 2}, {"0/4", 4}};
    EXPECT_EQ(TooltipAt(8), "") << "no failure, no state";
    diag->cpuStates = {{"0/4", 11}, {"0/5", 10}};
    EXPECT_EQ(TooltipAt(8), "T6102");
    EXPECT_EQ(TooltipAt(10), "") << "an empty place";
    diag->failures = {{"0/4", 1}};
    EXPECT_EQ(TooltipAt(8), "T6102\r\nT2021\r\nT2026\r\nT2027");
}

TEST_P(OverviewInput, CompareTooltips)
{
    view->Style(vxStyleHWCompare);
    const std::int32_t texts[3][8] = {{6107, 6119, 6109, 6110, 6108, 6108, 6112, 6112},
                                      {6107, 6119, 6109, 6111, 6108, 6108, 6112, 6112},
                                      {6107, 6119, 6110, 6111, 6108, 6108, 6112, 6112}};
    for (std::int32_t lType = 0; lType < 3; ++lType) {
        compare->compareType = lType;
        for (std::int32_t lResult = 1; lResult <= 8; ++lResult) {
            compare->results["0/4"] = lResult;
            EXPECT_EQ(TooltipAt(8), "T" + std::to_string(texts[lType][lResult - 1]) + "\r\nplace text 0/4");
        }
    }
    compare->compareType = 9;
    compare->results["0/4"] = 3;
    EXPECT_EQ(TooltipAt(8), "place text 0/4");
    compare->results["0/4"] = 0;
    EXPECT_EQ(TooltipAt(8), "");
}

/// What depends on racks one above the other.
class CentralInput : public UserOf<CentralOverview> {
protected:
    using Positions = std::vector<std::int32_t>;

    /// The new positions that the cursor key leads to from those, -1 where it leads nowhere.
    Positions CursorFrom(const Positions& from, int nKeyCode, int nShift = 0)
    {
        Positions to;
        for (const std::int32_t lFocus : from) {
            handler->FocusPosition(lFocus);
            controller->Take();
            site.User().KeyDown(static_cast<std::int16_t>(nKeyCode), static_cast<std::int16_t>(nShift));
            const Lines calls = controller->Take();
            to.push_back(calls.empty() ? -1 : std::stoi(calls.front().substr(calls.front().find(' '))));
            EXPECT_THAT(calls, Each(EndsWith(" " + std::to_string(nShift))));
        }
        return to;
    }
};

TEST_F(CentralInput, ARubberBandSelectsWhatItCovers)
{
    view->Refresh();
    const Raster before = Pic().raster;
    Select({{3, 1}});
    Pic().TakeLines();
    Press({234, 375});
    // It crosses racks and places, and ends at the edges of the picture.
    const std::pair<Point, const char*> steps[] = {{{100, 300}, "100,300 134x75"},
                                                   {{-20, 260}, "0,260 234x115"},
                                                   {{999, 999}, "234,375 4x17"},
                                                   {{60, -9}, "60,0 174x375"},
                                                   {{60, 250}, "60,250 174x125"}};
    std::string last;
    for (const auto& [to, shown] : steps) {
        Move(to);
        const std::string band = std::string("Invert ") + shown;
        EXPECT_EQ(Pic().TakeLines(), last.empty() ? Lines{band} : (Lines{last, band}));
        last = band;
    }
    Release({60, 250});
    EXPECT_EQ(Pic().TakeLines().front(), last);
    EXPECT_EQ(Selection(), "0/3 0/4 0/5 0/6 0/7 0/8 0/9 0/10 0/11 1/3 1/4 1/5 1/6 1/7 1/8 1/9 1/10 1/11");

    station->State(1, vxRackNotPresent);
    Press({234, 375}, Right);
    Release({60, 250}, Middle); // ends nothing
    Release({60, 250}, Right);
    EXPECT_EQ(Selection(), "0/3 0/4 0/5 0/6 0/7 0/8 0/9 0/10 0/11") << "a rack that is not present";
    station->State(1, vxRackPresent);
    Press({5, 375});
    Move({20, 380});
    Release({20, 380});
    EXPECT_EQ(Selection(), "");
    EXPECT_EQ(Raster::FirstDifference(Pic().raster, before), "");
    Move({100, 100});
    EXPECT_THAT(Pic().TakeLines(), Not(Contains(HasSubstr("100,100"))));
}

TEST_F(CentralInput, ARubberBandNeedsAnEmptySpotAndTheControllersConsent)
{
    const auto bands = [&](Point at, std::int16_t nButton) {
        Press(at, nButton);
        Move({100, 200}, nButton);
        const Lines drawn = Pic().TakeLines();
        Release({100, 200}, nButton);
        Pic().TakeLines();
        return !drawn.empty() && drawn.front() != "OLEDrag";
    };
    EXPECT_TRUE(bands({234, 375}, Left));
    EXPECT_TRUE(bands({234, 375}, Right));
    EXPECT_FALSE(bands({234, 375}, Middle));
    EXPECT_FALSE(bands({33, 330}, Left));
    controller->dragPosition = -1;
    EXPECT_FALSE(bands({234, 375}, Left)) << "a drag goes before a band";
    controller->dragPosition = -2;
    controller->canSelectByRubberBand = false;
    EXPECT_FALSE(bands({234, 375}, Left));
}

TEST_F(CentralInput, NothingIsDrawnBelowTheRubberBand)
{
    view->Refresh();
    const Raster before = Pic().raster;
    Press({234, 375});
    Move({10, 10});
    // Events within events: the band is off while the first begins, and on again when the last has ended.
    for (const Lines& lines : {DrawingOf(0, 4), DrawnBy([&] { view->Refresh(); })}) {
        EXPECT_EQ(lines.front(), "Invert 10,10 224x365");
        EXPECT_EQ(lines.back(), "Invert 10,10 224x365");
        EXPECT_EQ(std::count(lines.begin(), lines.end(), lines.front()), 2);
    }
    toolkit->sysColorsChanged();
    Press({230, 376}); // the release was lost: the old band goes
    Move({231, 377});
    Release({231, 377});
    EXPECT_EQ(Raster::FirstDifference(Pic().raster, before), "");
}

TEST_F(CentralInput, CursorKeysStepThroughGapsAndPlacesOnlyWhereEditingIsPossible)
{
    // Fine: configuration, not locked, no modifier.
    EXPECT_EQ(CursorFrom({4, 2, 1}, vxKeyLeft), (Positions{3, 1, -1}));
    EXPECT_EQ(CursorFrom({1022, 1023, 1000}, vxKeyRight), (Positions{1023, -1, 1001}));
    const auto expectCoarse = [&](int nShift) {
        EXPECT_EQ(CursorFrom({4, 3, 2}, vxKeyLeft, nShift), (Positions{2, 2, -1}));
        EXPECT_EQ(CursorFrom({3, 4, 21, 22}, vxKeyRight, nShift), (Positions{4, 6, 22, -1}));
    };
    for (const int nShift : {vxShiftMask, vxCtrlMask, vxAltMask}) expectCoarse(nShift);
    view->Locked(true);
    expectCoarse(0);
    view->Locked(false);
    view->Style(vxStyleHWDiag);
    expectCoarse(0);
}

TEST_F(CentralInput, CursorKeysChangeTheRackOrGoToItsEnds)
{
    EXPECT_EQ(CursorFrom({7, 3008}, vxKeyUp), (Positions{1007, -1}));
    EXPECT_EQ(CursorFrom({2008, 8}, vxKeyDown), (Positions{1008, -1}));
    station->State(1, vxRackNotPresent);
    EXPECT_EQ(CursorFrom({8}, vxKeyUp), Positions{-1});
    EXPECT_EQ(CursorFrom({2008}, vxKeyDown), Positions{-1});
    for (const int nShift : {vxShiftMask, vxCtrlMask}) {
        EXPECT_EQ(CursorFrom({2009, 2002}, vxKeyUp, nShift), (Positions{2002, -1}));
        EXPECT_EQ(CursorFrom({2003}, vxKeyDown, nShift), Positions{2022});
    }
    EXPECT_EQ(CursorFrom({2008}, vxKeyUp, vxAltMask), Positions{-1});
    for (const int nKey : {vxKeyLeft, vxKeyUp, vxKeyRight, vxKeyDown}) EXPECT_EQ(CursorFrom({-1}, nKey), Positions{-1});
}

TEST_F(CentralInput, TheKeyboardOpensTheMenuAtTheFocus)
{
    station->Put(0, 4, "CPU");
    Select({{0, 4}});
    const auto openedBy = [&](std::int32_t lFocus, std::int16_t nKeyCode, std::int16_t nDown, std::int16_t nUp) {
        handler->FocusPosition(lFocus);
        Menu().shown.clear();
        site.User().KeyDown(nKeyCode, nDown);
        EXPECT_THAT(Menu().shown, IsEmpty()) << "only the release opens it";
        site.User().KeyUp(nKeyCode, nUp);
        return Menu().shown.empty() ? "" : Menu().shown.back().substr(0, Menu().shown.back().find(" Cut"));
    };
    EXPECT_EQ(openedBy(2008, vxKeyApps, 0, 0), "at 86,125");
    EXPECT_EQ(openedBy(2007, vxKeyF10, vxShiftMask, vxShiftMask), "at 83,125");
    EXPECT_EQ(openedBy(2000, vxKeyF10, vxShiftMask, 0), "at 22,128") << "Shift is released before F10";
    site.User().KeyUp(vxKeyF10, 0);
    EXPECT_EQ(Menu().shown.size(), 1U);
    EXPECT_EQ(openedBy(2008, vxKeyF10, 0, 0), "");
}

TEST_F(CentralInput, WhatItShowsIsListedForThoseWhoDoNotSeeIt)
{
    const auto& central = dynamic_cast<VxHWRackOverview&>(*view);
    const OverviewItems& items = central.Items();
    station->Put(0, 4, "IO_DIGITAL");
    Select({{0, 4}});
    handler->FocusPosition(7);
    EXPECT_EQ(items.Racks(), (Positions{0, 1000, 2000, 3000}));
    Positions selected;
    Positions focused;
    for (const std::int32_t lRack : items.Racks()) {
        const Positions within = items.InRack(lRack / vxRackFactor);
        EXPECT_THAT(within, AllOf(SizeIs(23), Each(AllOf(Gt(lRack), Lt(lRack + 24)))));
        for (const std::int32_t lPosition : within) {
            const OverviewItem item = items.At(lPosition);
            std::int32_t lThere = vxNoPosition;
            central.PositionByCoordinates((item.rect.left + item.rect.right) / 2,
                                          (item.rect.top + item.rect.bottom) / 2, lThere);
            EXPECT_EQ(lThere, lPosition);
            if (item.bSelected) selected.push_back(lPosition);
            if (item.bFocused) focused.push_back(lPosition);
        }
    }
    EXPECT_EQ(selected, Positions{8});
    EXPECT_EQ(focused, Positions{7});
    EXPECT_FALSE(items.At(8).what.bEmpty);
    EXPECT_EQ(items.DetailsAt(8), TooltipAt(8));
    for (const std::int32_t lPosition : {-1, 24, 4000})
        EXPECT_EQ(items.At(lPosition).what.position.eType, vxPositionNone) << lPosition;
    view->VxHWStation(nullptr);
    EXPECT_THAT(items.Racks(), IsEmpty());
    EXPECT_THAT(items.InRack(0), IsEmpty());
}

} // namespace
} // namespace zqbchwcx::testing
