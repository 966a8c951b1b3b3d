#include "tests/support/model/SampleModel.h"
#include "zqbchwcx/reference/model/rules/AddressMap.h"
#include "zqbchwcx/reference/model/rules/CheckStation.h"

#include <gtest/gtest.h>

#include <limits>

namespace zqbchwcx::testing {
namespace {

using namespace reference;

TEST(AddressMap, FindsTheLowestAlignedFreeRange)
{
    AddressMap map(1024);
    map.Claim(0, 1);
    EXPECT_EQ(map.FirstFree(1), 1);
    EXPECT_EQ(map.FirstFree(2), 2);
    EXPECT_EQ(map.FirstFree(8), 4);
    map.Claim(2, 2);
    EXPECT_EQ(map.FirstFree(3), 4);
    map.Claim(4, 1020);
    EXPECT_EQ(map.FirstFree(1), 1);
    EXPECT_EQ(map.FirstFree(2), std::nullopt);
    map.Release(1020, 4);
    EXPECT_EQ(map.FirstFree(4), 1020);
    EXPECT_FALSE(map.IsFree(1020, 5)) << "beyond the area";
}

TEST(AddressMap, CopiesAreIndependentAndOverlapsAreCounted)
{
    AddressMap original(3 * AddressMap::PageSize);
    const std::int32_t border = AddressMap::PageSize - 2;
    original.Claim(border, 4);
    AddressMap copy = original;
    copy.Claim(border, 4);
    copy.Release(border, 4);
    EXPECT_FALSE(copy.IsFree(border + 3, 1)) << "still claimed once";
    copy.Release(border, 4);
    EXPECT_TRUE(copy.IsFree(border, 4));
    EXPECT_FALSE(original.IsFree(border, 1));
    original.Claim(std::numeric_limits<std::int32_t>::max() - 1, 8);
    original.Claim(-5, 3);
    EXPECT_EQ(original.FirstFree(4), 0) << "what lies outside does no harm";
}

TEST(AddressMap, AreaGrowsWithTheStation)
{
    EXPECT_EQ(AddressAreaSize(EmptyStation(0, 4)), 1024);
    EXPECT_EQ(AddressAreaSize(EmptyStation(0, 100)), 18 * 1024) << "16 bytes for each of 1100 places";
}

TEST(Addresses, CopiesGetNewOnesAndCutModulesGetTheirOwnBack)
{
    PlainStation station(EmptyStation(0, 1));
    station.Place(G_PlacePosition(0, 4), Block("DI DI CNT3 + +"));
    EXPECT_EQ(station.At({0, 4}).inputAddress, 0);
    EXPECT_EQ(station.At({0, 5}).inputAddress, 2);
    EXPECT_EQ(station.At({0, 6}).subModules.at(0).inputAddress, 4);
    EXPECT_EQ(station.At({0, 6}).subModules.at(1).inputAddress, 8);
    EXPECT_EQ(station.At({0, 6}).subModules.at(1).outputAddress, 4);

    const ModuleDataPtr cut = std::make_shared<ModuleData>(station.At({0, 5}));
    station.Place(G_PlacePosition(0, 10), {cut});
    EXPECT_EQ(station.At({0, 10}).inputAddress, 12);
    station.Delete({{0, 5}});
    station.Place(G_PlacePosition(0, 11), {cut});
    EXPECT_EQ(station.At({0, 11}).inputAddress, 2);
    EXPECT_TRUE(CheckStation(station.Data(), *SampleCatalogue()).empty());
}

} // namespace
} // namespace zqbchwcx::testing
