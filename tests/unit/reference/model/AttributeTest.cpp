#include "tests/support/model/SampleModel.h"
#include "zqbchwcx/reference/model/editing/EditModule.h"
#include "zqbchwcx/reference/model/rules/CheckStation.h"

#include <gmock/gmock.h>

namespace zqbchwcx::testing {
namespace {

using namespace reference;

constexpr std::optional<Rule> Done = std::nullopt;

PlainStation SampleStation()
{
    PlainStation station(EmptyStation(0, 1));
    station.Place(G_PlacePosition(0, 4), Block("DI DI DO AI2 + CNT3 + +"));
    return station;
}

TEST(SetAttribute, ChecksAddresses)
{
    PlainStation station = SampleStation();
    const std::tuple<std::int32_t, std::string, std::string, std::optional<Rule>> cases[] = {
        {4, "I-ADDRESS", "1022", Done},
        {4, "I-Address", " 102 .. 103 ", Done},
        {8, "I-ADDRESS", "104..111", Done},
        {4, "I-ADDRESS", "103", Rule::AddressOverlap},
        {4, "I-ADDRESS", "102..104", Rule::AddressRange},
        {4, "I-ADDRESS", "1023", Rule::AddressRange},
        {4, "I-ADDRESS", "-1", Rule::AddressRange},
        {4, "I-ADDRESS", "2147483647", Rule::AddressRange},
        {4, "I-ADDRESS", "2147483648", Rule::AddressSyntax},
        {4, "I-ADDRESS", "", Rule::AddressSyntax},
        {4, "I-ADDRESS", "4x", Rule::AddressSyntax},
        {4, "I-ADDRESS", "3", Rule::AddressOverlap},
        {4, "O-ADDRESS", "0", Rule::NoSuchAttribute},
        {6, "O-ADDRESS", "2", Done},
        {6, "O-ADDRESS", "3", Rule::AddressOverlap},
        {4, "BASIC ADDRESS", "0", Rule::NoSuchAttribute},
        {4, "COLOUR", "red", Rule::NoSuchAttribute},
        {3, "COMMENT", "nobody there", Rule::NothingToPlace},
        {4, "COMMENT", std::string(MaxTextBytes + 1, 'x'), Rule::TextTooLong},
        {4, "COMMENT", "half a character \xC3", Rule::DamagedText},
        {4, "COMMENT", std::string("a\0b", 3), Rule::DamagedText},
        {4, "NAME", "Pump 1", Done},
    };
    for (const auto& [place, name, value, result] : cases) {
        EXPECT_EQ(station.Set({0, place}, name, value), result) << name << " " << value;
        for (const Refusal& broken : CheckStation(station.Data(), *SampleCatalogue()))
            ADD_FAILURE() << "after " << value << ": " << broken.text.en;
    }
    EXPECT_EQ(station.At({0, 4}).inputAddress, 102) << "103 overlapped the analog module";
    EXPECT_EQ(station.At({0, 4}).name, "Pump 1");
}

TEST(SetAttribute, TellsWhoUsesTheAddress)
{
    const PlainStation station = SampleStation();
    const StationAddresses addresses = AddressesOf(station.Data(), *SampleCatalogue());
    const auto reason = [&](std::int32_t place, const std::string& name, const std::string& value) {
        return SetAttribute({station.Data(), *SampleCatalogue(), addresses}, {0, place}, name, value).Reason().text;
    };
    EXPECT_EQ(reason(4, "I-ADDRESS", "3").en, "The inputs 3..4 are in use by place 5 of rack 0");
    EXPECT_EQ(reason(6, "O-ADDRESS", "6").de, "Die Ausgänge 6..7 sind durch Platz 9 von Träger 0 belegt")
        << "a sub-module uses it";

    const auto user = [&](std::int32_t address, PlaceRef leftOut) {
        return UserOf(AddressArea::Input, address, 2, station.Data(), *SampleCatalogue(), leftOut);
    };
    EXPECT_EQ(user(1, {}), (PlaceRef{0, 4}));
    EXPECT_EQ(user(1, {0, 4}), (PlaceRef{0, 5})) << "the other one that is touched";
    EXPECT_EQ(user(2, {0, 5}), std::nullopt);
}

TEST(SetAttribute, ReadsParametersByTheirKindAndDropsDefaults)
{
    PlainStation station = SampleStation();
    const std::tuple<std::string, std::string, std::optional<Rule>> cases[] = {
        {"alarm", "1", Done},
        {"alarm", "maybe", Rule::ValueNotAllowed},
        {"DELAY", "20", Done},
        {"delay", "21", Rule::ValueNotAllowed},
        {"delay", "1.5", Rule::ValueNotAllowed},
        {"scale", "9.5", Done},
        {"delay", "9", Rule::ValueNotAllowed}, // "scale" is greater
        {"scale", "-9.25", Done},
        {"scale", "nan", Rule::ValueNotAllowed},
        {"scale", "11", Rule::ValueNotAllowed},
        {"edge", "falling", Done},
        {"edge", "sideways", Rule::ValueNotAllowed},
        {"label", "äöüßäöüß", Done},
        {"label", "123456789", Rule::ValueNotAllowed},
        {"missing", "1", Rule::NoSuchAttribute},
    };
    for (const auto& [key, value, result] : cases)
        EXPECT_EQ(station.Set({0, 4}, "PARAMETER " + key, value), result) << key << " " << value;
    const std::map<std::string, ParameterValue> expected = {{"alarm", true},
                                                            {"delay", std::int64_t{20}},
                                                            {"scale", -9.25},
                                                            {"edge", std::string("falling")},
                                                            {"label", std::string("äöüßäöüß")}};
    EXPECT_EQ(station.At({0, 4}).parameters, expected);
    EXPECT_EQ(station.Set({0, 4}, "PARAMETER delay", "3"), Done);
    EXPECT_FALSE(station.At({0, 4}).parameters.contains("delay"));
}

TEST(SetAttribute, LetsABrokenModuleBeMendedStepByStep)
{
    PlainStation station = SampleStation();
    ModuleData broken = station.At({0, 4});
    broken.parameters = {{"delay", std::int64_t{99}}, {"unknown", true}};
    station.PutUnchecked({0, 11}, broken);
    EXPECT_EQ(station.Set({0, 11}, "COMMENT", "still broken"), Done);
    EXPECT_EQ(station.Set({0, 11}, "PARAMETER delay", "5"), Done);
    EXPECT_EQ(station.Set({0, 11}, "I-ADDRESS", "60"), Done);
    EXPECT_EQ(station.Set({0, 11}, "PARAMETER delay", "77"), Rule::ValueNotAllowed);
}

TEST(CheckStation, AnOverlapNamesTheModuleThatReachesThere)
{
    PlainStation station(EmptyStation(0, 1));
    station.PutUnchecked({0, 4}, *NewModuleData("CNT3"));
    for (const std::int32_t place : {5, 6}) station.PutUnchecked({0, place}, *NewModuleData("DI"));
    std::vector<std::string> overlaps;
    for (const Refusal& broken : CheckStation(station.Data(), *SampleCatalogue()))
        if (broken.rule == Rule::PlaceOccupied) overlaps.push_back(broken.text.en);
    EXPECT_THAT(overlaps, ::testing::AllOf(::testing::SizeIs(2), ::testing::Each(::testing::HasSubstr("place 4"))));
}

TEST(CheckStation, FindsEveryBrokenRuleWithItsPlace)
{
    PlainStation station(EmptyStation(0, 2));
    const std::tuple<PlaceRef, const char*, std::optional<std::int32_t>> modules[] = {
        {{0, 1}, "CPU", {}},     {{0, 4}, "AI2", 0}, {{0, 5}, "DI", 6},     {{0, 6}, "DI", {}}, {{0, 7}, "DI", 5000},
        {{0, 8}, "GHOST", 5000}, {{0, 9}, "DM", 1},  {{0, 10}, "CNT3", {}}, {{1, 4}, "CP", {}},
    };
    for (const auto& [place, orderNumber, inputs] : modules) {
        ModuleData module = *NewModuleData(orderNumber);
        module.inputAddress = inputs;
        station.PutUnchecked(place, module);
    }
    station.Usability({0, 7}, -1);
    station.Usability({1, 4}, 0);

    std::vector<std::pair<PlaceRef, Rule>> found;
    for (const Refusal& broken : CheckStation(station.Data(), *SampleCatalogue()))
        found.emplace_back(broken.place, broken.rule);
    const std::vector<std::pair<PlaceRef, Rule>> expected = {
        {{0, 1}, Rule::WrongPlace},     {{0, 5}, Rule::PlaceOccupied},     {{0, 5}, Rule::AddressOverlap},
        {{0, 6}, Rule::AddressMissing}, {{0, 7}, Rule::PlaceNotUsable},    {{0, 7}, Rule::AddressRange},
        {{0, 8}, Rule::UnknownType},    {{0, 9}, Rule::AddressUnexpected}, {{0, 10}, Rule::SpanTooLong},
        {{0, 10}, Rule::SubModules},    {{1, 4}, Rule::PlaceInactive},     {{1, 4}, Rule::LeaderMissing},
    };
    EXPECT_EQ(found, expected);
}

} // namespace
} // namespace zqbchwcx::testing
