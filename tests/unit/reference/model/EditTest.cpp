#include "tests/support/model/SampleModel.h"

#include <gtest/gtest.h>

namespace zqbchwcx::testing {
namespace {

using namespace reference;

constexpr std::optional<Rule> Done = std::nullopt;

struct PlacingCase {
    std::string before;
    std::int32_t position;
    std::string block;
    std::string result; ///< what then stands in rack 0, or the rule against it
};

void ExpectResult(PlainStation station, const PlacingCase& placing)
{
    const std::string unchanged = station.Row(0);
    const std::optional<Rule> against = station.Place(placing.position, Block(placing.block));
    EXPECT_EQ(against ? RuleId(*against) : station.Row(0), placing.result)
        << placing.block << " at " << placing.position;
    EXPECT_TRUE(!against || station.Row(0) == unchanged);
}

/// Rack 0 as it is written; rack 1 is empty.
PlainStation CentralStation(const std::string& row)
{
    PlainStation station(EmptyStation(0, 2));
    station.Place(G_PlacePosition(0, 1), Block(row));
    return station;
}

TEST(PlaceBlock, LandsInOnePieceOrNotAtAll)
{
    const std::string some = "PS CPU IM DI";
    const std::string many = "PS CPU IM DM DI AI2 + DM DM DO CP";
    const PlacingCase cases[] = {
        {some, G_PlacePosition(0, 6), "DI - AI2 + - -", "PS CPU IM DI - DI - AI2 + - -"},
        {some, G_PlacePosition(0, 4), "- DO", "PS CPU IM DI DO - - - - - -"},
        {some, G_PlacePosition(0, 4), "DO", "place-occupied"},
        {some, G_PlacePosition(0, 10), "DO AI2 +", "span-too-long"},
        {some, G_PlacePosition(0, 11), "DO DO", "no-such-place"},
        {some, G_PlacePosition(0, 5), "DO CPU", "wrong-place"},
        {some, G_PlacePosition(0, 5), "DO NEW", "unknown-type"},
        {some, G_PlacePosition(0, 5), "HEAD2 +", "station-kind"},
        {some, G_PlacePosition(0, 5), "SUB", "sub-module-alone"},
        {some, G_PlacePosition(0, 5), "- -", "nothing-to-place"},
        {some, G_PlacePosition(1, 4), "DI", "leader-missing"},
        {some, G_PlacePosition(7, 4), "DI", "no-such-place"},
        {some, 0, "DI", "no-such-place"},
        {"PS CPU IM DI AI2 + - DO CP", G_GapPosition(0, 3), "DM", "PS CPU IM DM DI AI2 + DO CP - -"},
        {"PS CPU IM DM DI AI2 + DO CP", G_GapPosition(0, 7), "DM DM", many},
        {many, G_GapPosition(0, 6), "DM", "gap-in-module"},
        {many, G_GapPosition(0, 8), "CP", "no-room-to-shift"},
        {many, G_GapPosition(0, 0), "PS", "no-room-to-shift"},
    };
    for (const PlacingCase& placing : cases) ExpectResult(CentralStation(placing.before), placing);
}

TEST(PlaceBlock, KeepsOutOfTheHiddenPlacesOfADistributedStation)
{
    const std::string head = "HEAD2 + DI";
    const std::string full = "HEAD2 + - DO DI DI DI DI";
    const PlacingCase cases[] = {
        {head, G_GapPosition(0, 3), "DO", "HEAD2 + DI - DO - - - - -"},
        {head, G_GapPosition(0, 4), "DO", "HEAD2 + DI - DO - - - - -"},
        {head, G_GapPosition(0, 2), "DM AI2 +", "HEAD2 + DM - AI2 + DI - - -"},
        {full, G_GapPosition(0, 9), "DM", "HEAD2 + DO - DI DI DI DI DM -"},
        {full, G_GapPosition(0, 5), "AI2 +", "no-room-to-shift"},
        {head, G_PlacePosition(0, 4), "DO", "place-not-usable"},
        {"HEAD2 +", G_PlacePosition(0, 3), "AI2 +", "place-not-usable"},
        {head, G_PlacePosition(0, 9), "DI DI", "no-such-place"},
        {head, G_GapPosition(0, 0), "DI", "wrong-place"},
        {head, G_PlacePosition(0, 5), "HEAD2 +", "wrong-place"},
        {head, G_PlacePosition(0, 5), "CENTRAL", "station-kind"},
        {head, G_PlacePosition(1, 1), "HEAD2 +", "station-kind"},
    };
    for (const PlacingCase& placing : cases) {
        PlainStation station(EmptyStation(1, 2, 10));
        for (const std::int32_t place : {4, 10}) station.Usability({0, place}, -1);
        station.Place(G_PlacePosition(0, 1), Block(placing.before));
        ExpectResult(station, placing);
    }
}

TEST(PlaceBlock, RackFromOneOnNeedsItsInterfaceModule)
{
    PlainStation station = CentralStation("PS CPU IM");
    EXPECT_EQ(station.Place(G_PlacePosition(1, 1), Block("PS")), Done);
    EXPECT_EQ(station.Place(G_PlacePosition(1, 3), Block("IM DI DO")), Done) << "it may come with the block";
    EXPECT_EQ(station.Delete({{1, 3}}), Rule::LeaderMissing);
    EXPECT_EQ(station.Move(G_PlacePosition(0, 3), Block("IM"), {{1, 3}}), Rule::PlaceOccupied);
    EXPECT_EQ(station.Delete({{0, 3}}), Done) << "rack 0 works without one";
    EXPECT_EQ(station.Delete({{1, 3}, {1, 4}, {1, 5}}), Done) << "all of them at once";
    EXPECT_EQ(station.Row(1), "PS - - - - - - - - - -");
}

TEST(PlaceBlock, RackMustBePresent)
{
    StationData data = EmptyStation(0, 1);
    data.racks[0] = std::make_shared<RackData>(RackData{0, data.racks[0]->places});
    EXPECT_EQ(PlainStation(data).Place(G_PlacePosition(0, 4), Block("DI")), Rule::RackNotPresent);
}

TEST(PlaceBlock, DistributedStationNeedsItsHeadAndSkipsHiddenPlaces)
{
    PlainStation station(EmptyStation(1, 1));
    EXPECT_EQ(station.Place(G_PlacePosition(0, 2), Block("DI")), Rule::LeaderMissing);
    EXPECT_EQ(station.Place(G_PlacePosition(0, 1), Block("HEAD2 +")), Done);
    station.Usability({0, 4}, -1);
    EXPECT_EQ(station.Place(G_PlacePosition(0, 3), Block("DI DO")), Done);
    EXPECT_EQ(station.Row(0).substr(0, 16), "HEAD2 + DI - DO ");
    EXPECT_EQ(station.Delete({{0, 2}}), Rule::LeaderMissing);
}

TEST(PlaceAtGap, SkipsPlacesThatAreNotActiveAndTurnsLeftWhenTheRightIsFull)
{
    PlainStation station = CentralStation("PS CPU IM DI");
    station.Usability({0, 5}, 0);
    EXPECT_EQ(station.Place(G_GapPosition(0, 3), Block("DO")), Done);
    EXPECT_EQ(station.Row(0), "PS CPU IM DO - DI - - - - -");
    EXPECT_EQ(station.Place(G_PlacePosition(0, 8), Block("DI DI DI CP")), Done);
    EXPECT_EQ(station.Place(G_GapPosition(0, 11), Block("AI2 +")), Rule::NoRoomToShift);
    EXPECT_EQ(station.Place(G_GapPosition(0, 11), Block("DM")), Done);
    EXPECT_EQ(station.Row(0), "PS CPU IM DO - DI DI DI DI CP DM");
}

TEST(MoveBlock, LosesNothing)
{
    PlainStation station = CentralStation("PS CPU IM DI DO");
    const StationData before = station.Data();
    EXPECT_EQ(station.Move(G_PlacePosition(0, 8), Block("DI"), {{0, 4}, {0, 5}}), Rule::SourcesDiffer);
    EXPECT_EQ(station.Move(G_PlacePosition(0, 8), Block("DI DI"), {{0, 4}, {0, 5}}), Rule::SourcesDiffer);
    EXPECT_EQ(station.Move(G_PlacePosition(0, 11), Block("DI DO"), {{0, 4}, {0, 5}}), Rule::NoSuchPlace);
    EXPECT_TRUE(SameStation(station.Data(), before));
}

} // namespace
} // namespace zqbchwcx::testing
