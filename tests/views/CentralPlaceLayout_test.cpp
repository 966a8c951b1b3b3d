#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"

#include <gmock/gmock.h>

namespace zqbchwcx::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const CentralPlaceLayout layout;

/// The element code of a column in the middle of a place row, or -1, said in the other direction: by walking the
/// strips of the rack from the left.
std::int32_t CodeOfColumn(std::int32_t x)
{
    if (x < 22 || x > 224) return -1;
    std::int32_t right = 27; // gap 0
    for (std::int32_t lPlace = 1; lPlace <= 11; ++lPlace) {
        if (x < right) return 2 * lPlace - 1;
        right += 13;
        if (x < right) return 2 * lPlace;
        right += 5;
    }
    return 23;
}

TEST(CentralPlaceLayoutTest, EveryPixelHasThePositionOfItsStrip)
{
    for (std::int32_t y = 0; y < 392; ++y) {
        const std::int32_t lRack = 3 - y / 92;
        const std::int32_t dy = y % 92;
        for (std::int32_t x = 0; x < 238; ++x) {
            std::int32_t lExpected = -1;
            if (lRack >= 0 && x >= 12 && x < 22 && dy >= 30 && dy < 42) lExpected = lRack * 1000;
            else if (lRack >= 0 && dy >= 30 && dy <= 89 && CodeOfColumn(x) >= 0)
                lExpected = lRack * 1000 + CodeOfColumn(x);
            ASSERT_EQ(layout.PositionAt({x, y}), lExpected) << x << "," << y;
        }
    }
    EXPECT_EQ(layout.PositionAt({30, -50}), -1);
    EXPECT_EQ(layout.PositionAt({-50, 60}), -1);
}

TEST(CentralPlaceLayoutTest, APositionsPointLiesOnThePosition)
{
    for (std::int32_t lRack = 0; lRack < 4; ++lRack) {
        for (std::int32_t lCode = 0; lCode <= 23; ++lCode) {
            const std::int32_t lPosition = lRack * 1000 + lCode;
            EXPECT_EQ(layout.PositionAt(layout.PointOf(G_PositionInfo(lPosition))), lPosition);
        }
    }
    EXPECT_EQ(layout.PointOf(G_PositionInfo(-1)), Point{});
    EXPECT_EQ(layout.PointOf(G_PositionInfo(2023)), (Point{223, 152}));
    EXPECT_EQ(layout.PointOf(G_PositionInfo(8)), (Point{88, 336}));
    EXPECT_EQ(layout.PointOf(G_PositionInfo(3000)), (Point{18, 36}));
}

TEST(CentralPlaceLayoutTest, AGapLiesBetweenThePlacesThatAreShown)
{
    for (std::int32_t lGap = 0; lGap <= 11; ++lGap) {
        const GapNeighbours beside = layout.PlacesBeside(1, lGap);
        EXPECT_EQ(beside.lLeft, lGap) << "none is 0";
        EXPECT_EQ(beside.lRight, lGap < 11 ? lGap + 1 : 0);
    }
}

TEST(CentralPlaceLayoutTest, ARubberBandCoversTheRowsAndColumnsItTouches)
{
    const std::int32_t rackTop = 3 * 92; // rack 0
    EXPECT_THAT(layout.RangesBetween({10, rackTop + 30}, {200, rackTop + 30}), IsEmpty());
    EXPECT_THAT(layout.RangesBetween({10, rackTop + 90}, {200, rackTop + 95}), IsEmpty());
    EXPECT_THAT(layout.RangesBetween({10, rackTop + 10}, {100, rackTop + 31}), ElementsAre(PositionRange{1, 10}));
    EXPECT_THAT(layout.RangesBetween({100, rackTop + 200}, {10, rackTop + 89}), ElementsAre(PositionRange{1, 10}));
    EXPECT_THAT(layout.RangesBetween({0, 0}, {238, 392}),
                ElementsAre(PositionRange{1, 23}, PositionRange{1001, 1023}, PositionRange{2001, 2023},
                            PositionRange{3001, 3023}));
    EXPECT_THAT(layout.RangesBetween({230, 92 + 91}, {235, 2 * 92 + 40}), ElementsAre(PositionRange{1023, 1023}));
}

} // namespace
} // namespace zqbchwcx::testing
