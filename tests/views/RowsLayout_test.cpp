#include "tests/views/OverviewFixture.h"
#include "zqbchwcx/views/overview/RowsCursor.h"

namespace zqbchwcx::testing {
namespace {

using namespace ::testing;

/// An overview of 37 places, of which 9 (the first of a row, if it were shown), 14 and 15 are hidden: five rows, the
/// last one with two places. The picture is scrolled by a row.
class Rows : public AnyOverview {
protected:
    static constexpr std::int32_t RowHeight = 96;
    static constexpr std::int32_t PlaceWidth = 22;

    Rows()
    {
        station = MakeStation(EmptyStation(variant.eStationType, 1, 37));
        for (const std::int32_t lHidden : {9, 14, 15}) station->Usability(0, lHidden, vxPlaceNotUsable);
        handler->VxHWStation(station);
        view->VxHWStation(station);
        view->Refresh();
        for (std::int32_t lPlace = 1; lPlace <= 37; ++lPlace)
            if (lPlace != 9 && lPlace != 14 && lPlace != 15) shown.push_back(lPlace);
        toolkit->scrollBars.at("scb_Main")->DragTo(1);
    }

    /// The position of a pixel column in a row of places, said in the other direction than the layout does: by walking
    /// the strips of the row from the left.
    std::int32_t PositionOfColumn(std::size_t row, std::int32_t x) const
    {
        const std::size_t first = row * 8;
        const std::size_t last = std::min(first + 8, shown.size());
        if (x < 19 || x > 198 ||
            (last - first < 8 && x > 21 + static_cast<std::int32_t>(last - first) * PlaceWidth + 1))
            return vxNoPosition;
        std::int32_t right = 23; // of the gap before the first place
        for (std::size_t at = first; at < last; ++at) {
            if (x < right) return 2 * shown[at] - 1;
            right += PlaceWidth - 5;
            if (x < right) return 2 * shown[at];
            right += 5;
        }
        // Hidden places behind the eighth one part the gap behind it from the gap before the next row.
        if (x > 196 && last - first == 8) return 2 * shown[last - 1] + 1;
        return 2 * (last < shown.size() ? shown[last] : 38) - 1;
    }

    std::int32_t PositionInControl(Point at) const
    {
        std::int32_t lPosition = 0;
        dynamic_cast<const VxHWRackOverviewRIO&>(*view).PositionByCoordinates(at.x, at.y, lPosition);
        return lPosition;
    }
    /// What is on the picture, without the numbers.
    Lines PiecesOf(Lines lines) const
    {
        std::erase_if(lines, [](const auto& line) { return !line.starts_with("Image "); });
        return InWords(lines);
    }

    std::vector<std::int32_t> shown;
};

INSTANTIATE_TEST_SUITE_P(Distributed, Rows, Values(ViewVariants[1], ViewVariants[2]), PrintToStringParamName());

TEST_P(Rows, EveryPixelHasThePositionOfItsStripWhereverThePictureIsScrolled)
{
    const Point origin = PictureOrigin();
    ASSERT_EQ(origin, (Point{13, 14 - RowHeight}));
    for (std::int32_t y = -3; y < 5 * RowHeight + 30; ++y) {
        // Half a row is rounded to the even pixel above: the first line belongs to the row before.
        const std::int32_t lRow = (y - 1) / RowHeight;
        const std::int32_t yInRow = y - lRow * RowHeight;
        const bool bInPlaces = y > 0 && lRow < 5 && yInRow >= 11 && yInRow <= 82;
        for (std::int32_t x = -3; x < 217; ++x) {
            const std::int32_t lExpected =
                bInPlaces ? PositionOfColumn(static_cast<std::size_t>(lRow), x) : vxNoPosition;
            const bool bSeen = x >= 0 && y >= RowHeight && y < RowHeight + 386;
            ASSERT_EQ(PositionInControl({origin.x + x, origin.y + y}), bSeen ? lExpected : vxNoPosition)
                << x << "," << y;
            if (x < 0 || y < 0) continue;
            Mouse().MouseDown(vxButtonMiddle, 0, static_cast<float>(x), static_cast<float>(y));
            ASSERT_EQ(controller->Take().back(), "MouseDown " + std::to_string(lExpected) + " 4 0") << x << "," << y;
        }
    }
}

TEST_P(Rows, APositionsPointLiesOnThePosition)
{
    const auto pointOf = [&](std::int32_t lPosition) {
        Point at;
        dynamic_cast<const VxHWRackOverviewRIO&>(*view).CoordinatesByPosition(lPosition, at.x, at.y);
        return at;
    };
    const RowsLayout layout = RowsOf(*view);
    for (const std::int32_t lPlace : shown)
        for (const std::int32_t lPosition : {2 * lPlace, 2 * lPlace - 1})
            EXPECT_EQ(layout.PositionAt(pointOf(lPosition)), lPosition);
    EXPECT_EQ(pointOf(16), (Point{7 * PlaceWidth + 31, 47}));
    EXPECT_EQ(layout.GapLine(0, 3).width(), 0);
    EXPECT_EQ(pointOf(20), (Point{31, RowHeight + 47})) << "the next row begins with place 10";
    for (const std::int32_t lNowhere : {vxNoPosition, 0, 18, 28, 30, 1002}) EXPECT_EQ(pointOf(lNowhere), Point{});
}

TEST_P(Rows, ARubberBandCoversTheRowsAndColumnsItTouches)
{
    const RowsLayout layout = RowsOf(*view);
    const std::int32_t second = RowHeight;
    EXPECT_THAT(layout.RangesBetween({10, 84}, {200, second + 10}), IsEmpty()) << "between two rows";
    EXPECT_THAT(layout.RangesBetween({200, second + 50}, {30, 50}),
                ElementsAre(PositionRange{2, 19}, PositionRange{20, 39}));
    EXPECT_THAT(layout.RangesBetween({10, 4 * RowHeight}, {300, 999}), ElementsAre(PositionRange{71, 75}));
}

TEST_P(Rows, APictureIsItsRowsAndThePlacesThatAreShown)
{
    // One small station, whole: the end of the rail follows the last place.
    station = MakeStation(EmptyStation(variant.eStationType, 1, 10));
    station->Usability(0, 4, vxPlaceNotUsable);
    station->Put(0, 2, "DI");
    handler->VxHWStation(station);
    Pic().TakeLines();
    view->VxHWStation(station);
    Select({{0, 3}});
    const bool bRail = variant.eStationType == vxStationTypeDistributed1;
    const Lines rail{"Image RACK_START 3,11 style 1",          "Image PLACESTART_ACTIVE 20,11 style 1",
                     "Image RACK_MIDRIGHT 197,11 style 1",     "Image RACK_MIDLEFT 3,107 style 1",
                     "Image PLACESTART_ACTIVE 20,107 style 1", "Image RACK_END 43,107 style 1"};
    const Lines starts{"Image PLACESTART_ACTIVE 20,11 style 1", "Image PLACESTART_ACTIVE 20,107 style 1"};
    Pic().TakeLines();
    view->VxHWStation(nullptr);
    view->VxHWStation(station);
    EXPECT_EQ(PiecesOf(Pic().TakeLines()), bRail ? rail : starts);
    view->VxHWSelectionHandler(handler);
    view->Refresh();
    Lines expected;
    for (std::int32_t lPlace = 1; lPlace <= 10; ++lPlace) {
        const std::string at = " 0/" + std::to_string(lPlace) + " style ";
        const std::int32_t lBlend = lPlace == 3 ? 4 : 0;
        if (lPlace == 4) continue;
        if (bRail) expected.push_back("Image PLACEFRAME_ACTIVE" + at + "0");
        if (lPlace == 2) expected.push_back((bRail ? "Image MODULE_SMTYPE1" : "Image MODULE_GAMMA") + at + "1");
        else expected.push_back("Image PLACE_ACTIVE" + at + std::to_string((bRail ? 1 : 32) + lBlend));
    }
    EXPECT_EQ(PiecesOf(Pic().TakeLines()), expected);
    EXPECT_FALSE(toolkit->scrollBars.at("scb_Main")->Visible());
}

TEST_P(Rows, APlaceThatIsScrolledAwayIsDrawnWhereItWillBeSeen)
{
    const auto drawn = [&](std::int32_t lPlace) { return DrawingOf(0, lPlace).size(); };
    EXPECT_EQ(drawn(1), drawn(37)) << "the first row is above the viewport";
    EXPECT_EQ(drawn(9), 0U) << "hidden";
    EXPECT_THAT(DrawnBy([&] { toolkit->scrollBars.at("scb_Main")->DragTo(0); }), IsEmpty());
    // A drag marks where it may go: both the frame, if there is one, and the place.
    controller->state = vxDragDropStateActive;
    controller->dropPlace = "0/5";
    EXPECT_THAT(DrawingOf(0, 5), Each(HasSubstr("_DROP 0/5")));
    EXPECT_THAT(DrawingOf(0, 6), Contains(HasSubstr("PLACE_NODROP 0/6")));
}

TEST_P(Rows, KeysLeadAlongTheRowsAndBetweenThem)
{
    struct Case {
        std::int32_t from;
        std::int16_t key;
        std::int16_t shift;
        std::int32_t to;
        bool fine = true;
    };
    constexpr std::int32_t Stays = vxNoPosition;
    const RowsLayout layout = RowsOf(*view);
    for (const Case& move : {
             Case{16, vxKeyRight, 0, 19}, // over a hidden place
             Case{16, vxKeyRight, 0, 20, false},
             Case{20, vxKeyLeft, 0, 19},
             Case{20, vxKeyLeft, 0, 16, false},
             Case{74, vxKeyRight, 0, 75},
             Case{2, vxKeyLeft, 0, 1},
             Case{40, vxKeyDown, 0, 56},
             Case{56, vxKeyUp, 0, 40},
             Case{56, vxKeyDown, 0, 72},
             Case{60, vxKeyDown, 0, Stays},
             Case{60, vxKeyDown, vxShiftMask, 74},
             Case{6, vxKeyUp, vxCtrlMask, 2},
             Case{6, vxKeyDown, vxAltMask, Stays},
             Case{39, vxKeyUp, 0, 19},
             Case{23, vxKeyDown, 0, 43},
             Case{59, vxKeyDown, 0, 75}, // the end of a shorter row
             Case{61, vxKeyDown, 0, Stays},
             Case{2, vxKeyUp, 0, Stays},
         })
        EXPECT_EQ(G_RowsCursorTarget(layout, move.from, move.key, move.shift, move.fine).value_or(Stays), move.to)
            << move.from << " key " << move.key << " with " << move.shift;
}

TEST_P(Rows, AGapBehindTheLastPlaceIsBehindHiddenOnesToo)
{
    station = MakeStation(EmptyStation(variant.eStationType, 1, 10));
    for (const std::int32_t lHidden : {9, 10}) station->Usability(0, lHidden, vxPlaceNotUsable);
    handler->VxHWStation(station);
    view->VxHWStation(station);
    view->Refresh();
    const RowsLayout layout = RowsOf(*view);
    EXPECT_EQ(layout.Shown().NumberFrom(9), 11);
    EXPECT_EQ(layout.Shown().NumberFrom(8), 8);
}

TEST_P(Rows, TheyAreDrawnNoMoreWhenTheirStationIsLeft)
{
    const auto former = station;
    station = MakeStation(EmptyStation(variant.eStationType, 1, 8));
    handler->VxHWStation(station);
    view->VxHWStation(station);
    view->Refresh();
    EXPECT_THAT(DrawnBy([&] {
                    former->RackChange.Raise(former->Rack(0));
                    former->RackPlaceChange.Raise(former->Place(0, 2));
                    former->TotalRefresh.Raise();
                }),
                IsEmpty());
    view->VxHWStation(nullptr);
    station->RackChange.Raise(station->Rack(0));
    station->RackPlaceChange.Raise(station->Place(0, 2));
    station->TotalRefresh.Raise();
    EXPECT_THAT(TakeReports(), IsEmpty());
}

TEST_P(Rows, TheViewKeepsRoomForItsRowsAndItsBar)
{
    RecordingControl small(log, MakeRect(0, 0, 20, 20));
    const auto made = MakeView(small);
    site.Resize(100, 100);
    for (const RecordingControl* control : {&site, &small})
        EXPECT_EQ((Size{control->Width(), control->Height()}), (Size{3450, 6210}));
    EXPECT_EQ(toolkit->shapes.at("fra_ScrollUp").back()->backColor, vxColorButtonFace);
    dynamic_cast<VxHWRackOverviewRIO&>(*view).ShowAllRows(true);
    site.Resize(100, 100);
    EXPECT_EQ(site.Height(), 6210 + RowHeight * vxTwipsPerPixel) << "a fifth row";
}

TEST_P(Rows, TheyScrollByButtonWheelAndRubberBand)
{
    station = MakeStation(EmptyStation(variant.eStationType, 1, 96)); // twelve rows
    handler->VxHWStation(station);
    view->VxHWStation(station);
    view->Refresh();
    const RecordingScrollBar& bar = *toolkit->scrollBars.at("scb_Main");
    const auto after = [&](std::int32_t lMilliseconds) {
        toolkit->clock.Advance(lMilliseconds);
        return bar.Value();
    };
    auto& down = toolkit->buttons.at("cmd_ScrollDown")->User();
    down.MouseDown(vxButtonLeft);
    EXPECT_EQ(bar.Value(), 1) << "at once";
    EXPECT_EQ(after(499), 1);
    EXPECT_EQ(after(1), 2);
    EXPECT_EQ(after(200), 4);
    down.MouseUp(vxButtonLeft);
    EXPECT_EQ(after(1000), 4);

    auto& keys = site.User();
    EXPECT_TRUE(keys.MouseWheel(0.5F));
    EXPECT_EQ(bar.Value(), 4);
    EXPECT_TRUE(keys.MouseWheel(0.5F));
    EXPECT_EQ(bar.Value(), 3) << "half notches add up";
    EXPECT_TRUE(keys.MouseWheel(-1));
    EXPECT_EQ(bar.Value(), 4);
    EXPECT_TRUE(keys.MouseWheel(99));
    EXPECT_FALSE(keys.MouseWheel(1)) << "for whoever scrolls around it";

    controller->canSelectByRubberBand = true;
    Mouse().MouseDown(vxButtonLeft, 0, 210, 40);
    Mouse().MouseMove(vxButtonLeft, 0, 100, 500); // below what is seen
    EXPECT_EQ(bar.Value(), 1);
    EXPECT_EQ(after(100), 2);
    EXPECT_EQ(after(100), 3);
    EXPECT_EQ(Pic().Top(), -3 * RowHeight);
    Mouse().MouseMove(vxButtonLeft, 0, 100, 400); // back in it
    EXPECT_EQ(after(1000), 3);
    Mouse().MouseUp(vxButtonLeft, 0, 100, 400);

    // In a drag, the buttons that can scroll are marked, and scroll while the drag rests on them.
    controller->state = vxDragDropStateActive;
    dynamic_cast<OverviewControl&>(*view).StateChange(vxDragDropStateInactive);
    EXPECT_EQ(toolkit->shapes.at("fra_ScrollDown").front()->backColor, G_Rgb(84, 180, 228));
    std::int32_t lEffect = vxDropEffectCopy;
    down.OLEDragOver(std::make_shared<FakeDataObject>(log), lEffect, vxButtonLeft, 0, vxDragEnter);
    EXPECT_EQ(after(249), 3);
    EXPECT_EQ(after(1), 4);
}

} // namespace
} // namespace zqbchwcx::testing
