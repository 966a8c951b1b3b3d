#include "tests/unit/reference/model/SampleModel.h"

#include <gtest/gtest.h>

namespace zqbchwcx::testing {
namespace {

using namespace reference;

constexpr std::optional<Rule> Done = std::nullopt;

PlainStation CentralStation(const ModuleBlock& inputOutputModules)
{
    PlainStation station(EmptyStation(0, 2));
    station.Place(G_PlacePosition(0, 1), Block({"PS", "CPU", "IM"}));
    station.Place(G_PlacePosition(0, 4), inputOutputModules);
    return station;
}

TEST(PlaceBlock, KeepsItsShapeAndTheFirstPlace)
{
    PlainStation station = CentralStation({});
    EXPECT_EQ(station.Place(G_PlacePosition(0, 5), Block({"DI", "", "AI2", "", ""})), Done);
    EXPECT_EQ(station.Row(0), "PS CPU IM - DI - AI2 + - - -");
    EXPECT_EQ(station.Place(G_PlacePosition(0, 3), Block({"", "DO"})), Done) << "an empty item needs no free place";
    EXPECT_EQ(station.Row(0), "PS CPU IM DO DI - AI2 + - - -");
}

TEST(PlaceBlock, LandsInOnePieceOrNotAtAll)
{
    PlainStation station = CentralStation(Block({"DI"}));
    const StationData before = station.Data();
    const struct {
        std::int32_t position;
        ModuleBlock block;
        Rule rule;
    } cases[] = {
        {G_PlacePosition(0, 4), Block({"DO"}), Rule::PlaceOccupied},
        {G_PlacePosition(0, 10), Block({"DO", "AI2"}), Rule::SpanTooLong},
        {G_PlacePosition(0, 11), Block({"DO", "DO"}), Rule::NoSuchPlace},
        {G_PlacePosition(0, 5), Block({"DO", "CPU"}), Rule::WrongPlace},
        {G_PlacePosition(0, 5), Block({"DO", "NEW"}), Rule::UnknownType},
        {G_PlacePosition(0, 5), Block({"SUB"}), Rule::SubModuleAlone},
        {G_PlacePosition(0, 5), Block({"", ""}), Rule::NothingToPlace},
        {G_PlacePosition(0, 5), Block({}), Rule::NothingToPlace},
        {G_PlacePosition(1, 4), Block({"DI"}), Rule::LeaderMissing},
        {G_PlacePosition(7, 4), Block({"DI"}), Rule::NoSuchPlace},
        {0, Block({"DI"}), Rule::NoSuchPlace},
        {-1, Block({"DI"}), Rule::NoSuchPlace},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(station.Place(c.position, c.block), c.rule);
        EXPECT_TRUE(SameStation(station.Data(), before));
    }
}

TEST(PlaceBlock, RackFromOneOnNeedsItsInterfaceModule)
{
    PlainStation station = CentralStation({});
    EXPECT_EQ(station.Place(G_PlacePosition(1, 1), Block({"PS"})), Done);
    EXPECT_EQ(station.Place(G_PlacePosition(1, 3), Block({"IM", "DI", "DO"})), Done) << "it may come with the block";
    EXPECT_EQ(station.Delete({{1, 3}}), Rule::LeaderMissing);
    EXPECT_EQ(station.Move(G_PlacePosition(0, 3), Block({"IM"}), {{1, 3}}), Rule::PlaceOccupied);
    EXPECT_EQ(station.Delete({{0, 3}}), Done) << "rack 0 works without one";
    EXPECT_EQ(station.Delete({{1, 3}, {1, 4}, {1, 5}}), Done) << "all of them at once";
    EXPECT_EQ(station.Row(1), "PS - - - - - - - - - -");
}

TEST(PlaceBlock, DistributedStationNeedsItsHeadAndSkipsHiddenPlaces)
{
    PlainStation station(EmptyStation(1, 1));
    EXPECT_EQ(station.Place(G_PlacePosition(0, 2), Block({"DI"})), Rule::LeaderMissing);
    EXPECT_EQ(station.Place(G_PlacePosition(0, 1), Block({"HEAD2"})), Done);
    station.Usability({0, 4}, -1);
    EXPECT_EQ(station.Place(G_PlacePosition(0, 3), Block({"DI", "DO"})), Done);
    EXPECT_EQ(station.Row(0).substr(0, 16), "HEAD2 + DI - DO ");
    EXPECT_EQ(station.Delete({{0, 2}}), Rule::LeaderMissing);
}

TEST(PlaceAtGap, ShiftsToTheNextFreePlaces)
{
    PlainStation station = CentralStation(Block({"DI", "AI2", "", "DO", "CP"}));
    EXPECT_EQ(station.Place(G_GapPosition(0, 3), Block({"DM"})), Done);
    EXPECT_EQ(station.Row(0), "PS CPU IM DM DI AI2 + DO CP - -") << "the free place takes the shift up";
    EXPECT_EQ(station.Place(G_GapPosition(0, 6), Block({"DM"})), Rule::GapInsideModule);
    EXPECT_EQ(station.Place(G_GapPosition(0, 7), Block({"DM", "DM"})), Done);
    EXPECT_EQ(station.Row(0), "PS CPU IM DM DI AI2 + DM DM DO CP");
    EXPECT_EQ(station.Place(G_GapPosition(0, 8), Block({"CP"})), Rule::NoRoomToShift);
    EXPECT_EQ(station.Place(G_GapPosition(0, 0), Block({"PS"})), Rule::NoRoomToShift);
}

TEST(PlaceAtGap, SkipsPlacesThatAreNotActiveAndTurnsLeftWhenTheRightIsFull)
{
    PlainStation station = CentralStation(Block({"DI"}));
    station.Usability({0, 5}, 0);
    EXPECT_EQ(station.Place(G_GapPosition(0, 3), Block({"DO"})), Done);
    EXPECT_EQ(station.Row(0), "PS CPU IM DO - DI - - - - -");
    EXPECT_EQ(station.Place(G_PlacePosition(0, 8), Block({"DI", "DI", "DI", "CP"})), Done);
    EXPECT_EQ(station.Place(G_GapPosition(0, 11), Block({"AI2"})), Rule::NoRoomToShift);
    EXPECT_EQ(station.Place(G_GapPosition(0, 11), Block({"DM"})), Done);
    EXPECT_EQ(station.Row(0), "PS CPU IM DO - DI DI DI DI CP DM");
}

TEST(MoveBlock, LosesNothing)
{
    PlainStation station = CentralStation(Block({"DI", "DO"}));
    const StationData before = station.Data();
    EXPECT_EQ(station.Move(G_PlacePosition(0, 8), Block({"DI"}), {{0, 4}, {0, 5}}), Rule::SourcesDiffer);
    EXPECT_EQ(station.Move(G_PlacePosition(0, 8), Block({"DI", "DI"}), {{0, 4}, {0, 5}}), Rule::SourcesDiffer);
    EXPECT_EQ(station.Move(G_PlacePosition(0, 11), Block({"DI", "DO"}), {{0, 4}, {0, 5}}), Rule::NoSuchPlace);
    EXPECT_TRUE(SameStation(station.Data(), before));
}

TEST(DeleteAt, TakesSpanningModulesWholeAndSharesUntouchedRacks)
{
    PlainStation station = CentralStation(Block({"CNT3", "DI"}));
    const StationData before = station.Data();
    EXPECT_EQ(station.Delete({{0, 5}, {0, 9}}), Done);
    EXPECT_EQ(station.Row(0), "PS CPU IM - - - DI - - - -");
    EXPECT_EQ(station.Data().racks[1], before.racks[1]);
    EXPECT_NE(station.Data().racks[0], before.racks[0]);
}

TEST(Edits, ReadOnlyStationRefusesEverything)
{
    StationData data = CentralStation(Block({"DI"})).Data();
    data.readOnly = true;
    PlainStation station(data);
    EXPECT_EQ(station.Place(G_PlacePosition(0, 6), Block({"DI"})), Rule::ReadOnly);
    EXPECT_EQ(station.Move(G_PlacePosition(0, 6), Block({"DI"}), {{0, 4}}), Rule::ReadOnly);
    EXPECT_EQ(station.Delete({{0, 4}}), Rule::ReadOnly);
    EXPECT_EQ(station.Set({0, 4}, "COMMENT", "x"), Rule::ReadOnly);
}

} // namespace
} // namespace zqbchwcx::testing
