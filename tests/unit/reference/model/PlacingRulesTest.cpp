#include "zqbchwcx/reference/model/rules/PlacingRules.h"
#include "tests/support/model/SampleModel.h"

#include <gtest/gtest.h>

#include <array>

namespace zqbchwcx::testing {
namespace {

using namespace reference;

/// The places of a rack that take a module of the type, all other rules apart: "1", "4-11", "".
std::string Takers(std::int32_t kind, std::int32_t rack, const std::string& orderNumber)
{
    const StationData data = EmptyStation(kind, kind == 0 ? 4 : 1);
    const ModuleType& type = *SampleCatalogue()->Find(orderNumber);
    std::string places;
    for (std::int32_t place = 1; place <= 11; ++place) {
        if (AgainstType(data, type, {rack, place}) || AgainstPlaces(data, {rack, place}, type.placeCount)) continue;
        places += std::to_string(place) + " ";
    }
    return places;
}

TEST(PlacingRules, EachFamilyFitsItsPlacesOnly)
{
    const std::string none;
    const std::string io = "4 5 6 7 8 9 10 11 ";
    const std::string behindHead = "2 3 4 5 6 7 8 9 10 11 ";
    const std::array<std::string, 4> cases[] = {
        {"PS", "1 ", "1 ", behindHead},
        {"CPU", "2 ", none, none},
        {"IM", "3 ", "3 ", "1 "},
        {"DI", io, io, behindHead},
        {"CNT3", "4 5 6 7 8 9 ", "4 5 6 7 8 9 ", behindHead},
        {"DM", io, io, behindHead},
        {"HEAD2", none, none, "1 "},
        {"CENTRAL", io, io, none},
        {"SUB", none, none, none},
    };
    for (const auto& [type, rack0, rack1, distributed] : cases) {
        EXPECT_EQ(Takers(0, 0, type), rack0) << type;
        EXPECT_EQ(Takers(0, 1, type), rack1) << type;
        EXPECT_EQ(Takers(1, 0, type), distributed) << type;
        EXPECT_EQ(Takers(2, 0, type), distributed) << type;
    }
}

TEST(PlacingRules, ReasonsNamePlaceAndCauseInBothLanguages)
{
    const Objection objection = AgainstType(EmptyStation(0, 2), *SampleCatalogue()->Find("DI"), {1, 3});
    ASSERT_TRUE(objection);
    EXPECT_EQ(objection->place, (PlaceRef{1, 3}));
    EXPECT_EQ(objection->text.en, "DI does not fit: place 3 of rack 1 takes only an interface module");
    EXPECT_EQ(objection->text.de, "DI passt nicht: Platz 3 von Träger 1 nimmt nur eine Anschaltung auf");
    EXPECT_EQ(RuleId(objection->rule), "wrong-place");
}

} // namespace
} // namespace zqbchwcx::testing
