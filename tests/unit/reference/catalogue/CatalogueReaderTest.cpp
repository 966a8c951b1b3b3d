#include "tests/unit/reference/files/Damage.h"

namespace zqbchwcx::reference {
namespace {

using nlohmann::ordered_json;
using ::testing::HasSubstr;

ordered_json ValidCatalogue()
{
    return ordered_json::parse(R"({
        "format": "quillon-catalogue", "version": 1, "maker": "Maker",
        "parameterSets": {"delay": [{"key": "delay", "label": "Delay", "kind": "integer", "unit": "ms",
                                     "minimum": 1, "maximum": 20, "default": 3}]},
        "types": [
            {"orderNumber": "DI", "family": "digital", "name": {"en": "Inputs", "de": "Eingänge"},
             "description": "-", "picture": "IDB_X", "stations": ["central", "distributedB"], "inputBytes": 2,
             "subModules": ["SUB"], "parameterSets": ["delay"],
             "parameters": [{"key": "edge", "label": "Edge", "kind": "choice", "default": "up",
                             "choices": [{"key": "up", "label": "Up"}, {"key": "down", "label": "Down"}]},
                            {"key": "factor", "label": "Factor", "kind": "real", "minimum": 0, "maximum": 2,
                             "default": 1}]},
            {"orderNumber": "SUB", "family": "digital", "name": "Sub", "description": "-", "isSubModule": true}],
        "groups": [{"name": "All", "types": ["DI"]}],
        "faults": [{"code": 7, "text": "Any", "remedy": "-"},
                   {"code": 7, "families": ["digital", "analog"], "text": {"en": "Break", "de": "Bruch"},
                    "remedy": "Look"}]})");
}

Catalogue ReadText(const std::string& text)
{
    return ReadCatalogue({ParseStrictJson(text, "types.json")});
}

TEST(CatalogueReader, ReadsTypes)
{
    const Catalogue catalogue = ReadText(ValidCatalogue().dump());
    const ModuleType* type = catalogue.Find("DI");
    ASSERT_TRUE(type);
    EXPECT_EQ(type->name.In(Language::German), "Eingänge");
    EXPECT_TRUE(type->FitsStation(0));
    EXPECT_FALSE(type->FitsStation(1));
    EXPECT_TRUE(type->FitsStation(2));
    ASSERT_EQ(type->parameters.size(), 3U) << "those of its set and its own";
    EXPECT_EQ(type->parameters[2].defaultValue, ParameterValue(1.0));
    EXPECT_FALSE(catalogue.Find("di"));
    EXPECT_EQ(catalogue.FindFault(ModuleFamily::Digital, 7)->what.de, "Bruch");
    EXPECT_EQ(catalogue.FindFault(ModuleFamily::Counter, 7)->what.de, "Any");
    EXPECT_EQ(catalogue.FindFault({}, 8), nullptr);
}

TEST(CatalogueReader, RefusesWhatDoesNotFitTogether)
{
    const Damage damages[] = {
        {"/types/0/family", R"("lamp")", "/types/0/family", "must be one of"},
        {"/types/0/name/fr", R"("Entrées")", "/types/0/name/fr", "unknown"},
        {"/types/0/inputBytes", "-1", "/types/0/inputBytes", "from 0"},
        {"/types/0/places", "0", "/types/0/places", "from 1"},
        {"/types/0/stations", "[]", "/types/0/stations", "must not be empty"},
        {"/types/0/stations/1", R"("central")", "/types/0/stations/1", "stands twice"},
        {"/types/0/subModules/0", R"("NONE")", "/types/0/subModules/0", "no module type"},
        {"/types/0/subModules/0", R"("DI")", "/types/0/subModules/0", "is no sub-module"},
        {"/types/0/parameterSets/0", R"("none")", "/types/0/parameterSets/0", "no parameter set"},
        {"/types/0/parameters/0/key", R"("delay")", "/types/0/parameters/0", "stands twice"},
        {"/types/0/parameters/0/default", R"("left")", "/types/0/parameters/0/default", "none of the choices"},
        {"/types/0/parameters/0/maximum", "1", "/types/0/parameters/0/maximum", "no range"},
        {"/types/0/parameters/0/choices/1/key", R"("up")", "/types/0/parameters/0/choices/1/key", "stands twice"},
        {"/types/0/parameters/1/default", "2.5", "/types/0/parameters/1/default", "own range"},
        {"/types/0/parameters/1/minimum", "3", "/types/0/parameters/1/minimum", "greater than the maximum"},
        {"/types/0/parameters/0/notAbove", R"("factor")", "/types/0/parameters/0/notAbove", "only numbers"},
        {"/types/0/parameters/1/notAbove", R"("factor")", "/types/0", "no other number"},
        {"/types/0/parameters/1/notAbove", R"("edge")", "/types/0", "no other number"},
        {"/parameterSets/delay/0/notAbove", R"("factor")", "/types/0", "default of \"delay\" is greater"},
        {"/types/0/parameters/1/choices", "[]", "/types/0/parameters/1/choices", "no choices"},
        {"/parameterSets/delay/0/default", "3.5", "/parameterSets/delay/0/default", "must be an integer"},
        {"/parameterSets/delay/0/minimum", "", "/parameterSets/delay/0", "\"minimum\" is missing"},
        {"/types/1/orderNumber", R"("DI")", "/types/1/orderNumber", "stands twice"},
        {"/types/1/picture", R"("IDB_X")", "/types/1/picture", "do not have this"},
        {"/faults/0/code", "31", "/faults/0/code", "from 1 to 30"},
        {"/faults/1/families/1", R"("digital")", "/faults/1/families/1", "has a text already"},
        {"/faults/1/remedy", "", "/faults/1", "\"remedy\" is missing"},
        {"/groups/0/types/0", R"("NONE")", "/groups/0/types/0", "no module type"},
    };
    ExpectEachRefused(ValidCatalogue(), damages, "types.json", [](const std::string& text) { ReadText(text); });
}

TEST(CatalogueReader, JoinsFiles)
{
    const auto withSecond = [](const char* members) {
        const std::string second = R"({"format": "quillon-catalogue", "version": 1, )" + std::string(members) + "}";
        return ErrorOf([&] {
            ReadCatalogue({ParseStrictJson(ValidCatalogue().dump(), "a.json"), ParseStrictJson(second, "b.json")});
        });
    };
    EXPECT_EQ(withSecond(R"("maker": "Maker", "types": [
                 {"orderNumber": "DO", "family": "digital", "name": "Outputs", "description": "-", "picture": "P",
                  "stations": ["central"], "parameterSets": ["delay"], "subModules": ["SUB"]}])")
                  .reason,
              "no error");
    EXPECT_EQ(withSecond(R"("maker": "Other")").pointer, "/maker");
    EXPECT_EQ(withSecond(R"("maker": "Maker", "parameterSets": {"delay": []})").pointer, "/parameterSets/delay");
    EXPECT_THAT(ErrorOf([] { LoadCatalogueDirectory(zqbchwcx::testing::SourceFile("assets/texts/none")); }).reason,
                HasSubstr("no catalogue file"));
}

} // namespace
} // namespace zqbchwcx::reference
