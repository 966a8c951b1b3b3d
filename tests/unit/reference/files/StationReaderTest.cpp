#include "tests/unit/reference/files/Damage.h"
#include "tests/unit/reference/files/TemporaryDirectory.h"

namespace zqbchwcx::reference {
namespace {

using nlohmann::ordered_json;
using ::testing::HasSubstr;

FileError ParseError(const std::string& text)
{
    return ErrorOf([&] { ParseStation(text, "plant.json", ShippedCatalogue()); });
}

ordered_json ValidStation()
{
    return ordered_json::parse(R"({
        "$schema": "s", "format": "quillon-station", "version": 1, "name": "Plant", "kind": "central",
        "displayMode": 0, "readOnly": false,
        "racks": [{"present": true, "placeCount": 11, "places": [
            {"place": 4, "module": {"orderNumber": "Q3-CG04-A", "parameters": {"protocol": "rtu"},
                "subModules": [{"orderNumber": "Q3-CG04-SP", "inputAddress": 0, "outputAddress": 0}]}},
            {"place": 6, "usability": "inactive"},
            {"place": 7, "module": {"orderNumber": "Q3-AI08-A", "inputAddress": 8, "name": "Levels"}}]}]})");
}

TEST(StationReader, RefusesWhatIsNotExactlyAStation)
{
    const Damage damages[] = {
        {"/format", "", "", "\"format\" is missing"},
        {"/format", R"("quillon-texts")", "/format", "must be \"quillon-station\""},
        {"/version", "2", "/version", "reads versions up to 1"},
        {"/version", "0", "/version", "must be an integer from 1"},
        {"/colour", R"("red")", "/colour", "unknown"},
        {"/name", "7", "/name", "must be a string"},
        {"/kind", R"("remote")", "/kind", "\"central\", \"distributedA\", \"distributedB\""},
        {"/displayMode", "3", "/displayMode", "from 0 to 2"},
        {"/displayMode", "1.0", "/displayMode", "must be an integer"},
        {"/readOnly", "1", "/readOnly", "must be true or false"},
        {"/racks", "{}", "/racks", "must be an array"},
        {"/racks", "[]", "/racks", "at least one rack"},
        {"/racks/0", "5", "/racks/0", "must be an object"},
        {"/racks/0", "null", "/racks/0", "must be an object"},
        {"/racks/0/placeCount", "0", "/racks/0/placeCount", "from 1 to 499"},
        {"/racks/0/placeCount", "500", "/racks/0/placeCount", "from 1 to 499"},
        {"/racks/0/places/1/colour", "1", "/racks/0/places/1/colour", "unknown"},
        {"/racks/0/places/2/place", "12", "/racks/0/places/2/place", "from 1 to 11"},
        {"/racks/0/places/2/place", "18446744073709551615", "/racks/0/places/2/place", "from 1 to 11"},
        {"/racks/0/places/1/place", "4", "/racks/0/places/1/place", "stands twice"},
        {"/racks/0/places/1/place", "2", "/racks/0/places/1/place", "rising order"},
        {"/racks/0/places/1/usability", R"("off")", "/racks/0/places/1/usability", "\"inactive\""},
        {"/racks/0/places/2/module/orderNumber", R"("")", "/racks/0/places/2/module/orderNumber", "must not be empty"},
        {"/racks/0/places/2/module/inputAddress", "-1", "/racks/0/places/2/module/inputAddress", "from 0 to"},
        {"/racks/0/places/0/module/parameters/protocol", "[]", "/racks/0/places/0/module/parameters/protocol",
         "must be true, false, a number or a string"},
        {"/racks/0/places/0/module/subModules/0/subModules", "[]", "/racks/0/places/0/module/subModules/0/subModules",
         "no sub-modules of their own"},
        {"/racks/0/places/0/module/parameters/a~1b~0c", "null", "/racks/0/places/0/module/parameters/a~1b~0c",
         "must be true, false"},
        {"/racks/0/places/2", R"({"place": 10, "module": {"orderNumber": "Q3-PO03-W"}})", "/racks/0/places/2/module",
         "spans 3 places and reaches beyond place 11"},
    };
    ExpectEachRefused(ValidStation(), damages, "plant.json",
                      [](const std::string& text) { ParseStation(text, "plant.json", ShippedCatalogue()); });
}

TEST(StationReader, RefusesDamagedAndHostileJson)
{
    const std::string valid = ValidStation().dump(2);
    EXPECT_THAT(ParseError("").reason, HasSubstr("line 1"));
    EXPECT_EQ(ParseError("{\n \"a\": }").Message(Language::German),
              "plant.json: ist kein gültiges JSON: Zeile 2, Spalte 7");
    EXPECT_THAT(ParseError("{\"format\": \"\xff\"}").reason, HasSubstr("UTF-8"));
    EXPECT_THAT(ParseError(R"({"name": 1e999})").reason, HasSubstr("overflow"));

    const FileError repeated = ParseError(R"({"racks": [{"places": [], "places": []}]})");
    EXPECT_EQ(repeated.pointer, "/racks/0/places");
    EXPECT_THAT(repeated.reason, HasSubstr("stands twice"));

    EXPECT_THAT(ParseError(std::string(5'000'000, '[')).reason, HasSubstr("nested deeper"));
    ordered_json manyRacks = ValidStation();
    for (int i = 0; i < MaxRacks; ++i) manyRacks["racks"].push_back(manyRacks["racks"][0]);
    EXPECT_EQ(ParseError(manyRacks.dump()).pointer, "/racks");
    ordered_json uneven = ValidStation();
    uneven["racks"].push_back({{"placeCount", 12}, {"places", ordered_json::array()}});
    EXPECT_EQ(ParseError(uneven.dump()).pointer, "/racks/1/placeCount");
    EXPECT_THAT(ParseError(uneven.dump()).reason, HasSubstr("as rack 0: 11"));
    ordered_json secondBroken = ValidStation();
    secondBroken["racks"].push_back({{"placeCount", 4}, {"places", "none"}});
    EXPECT_EQ(ParseError(secondBroken.dump()).pointer, "/racks/1/places");
    EXPECT_EQ(ParseError(R"({"racks": [5], "format": "other"})").pointer, "/format") << "another file altogether";

    // Whatever is cut off, it is refused and never half read.
    for (std::size_t length = 0; length < valid.size(); length += 7)
        EXPECT_NE(ParseError(valid.substr(0, length)).reason, "no error") << length;
}

TEST(StationReader, ReadsStationsThatBreakRules)
{
    ordered_json station = ValidStation();
    station["racks"][0]["places"][0]["module"]["orderNumber"] = "Unknown-1";
    station["racks"][0]["places"][0]["module"]["parameters"]["noSuch"] = 5;
    station["racks"][0]["places"][2]["module"]["parameters"] = {{"highLimit", 12}};
    const StationData data = ParseStation(station.dump(), "plant.json", ShippedCatalogue());
    EXPECT_EQ(data.racks[0]->places[3].module->orderNumber, "Unknown-1");
    EXPECT_EQ(data.racks[0]->places[3].module->parameters.at("noSuch"), ParameterValue(std::int64_t{5}));
    EXPECT_EQ(data.racks[0]->places[6].module->parameters.at("highLimit"), ParameterValue(12.0)) << "real by its type";
    EXPECT_EQ(data.racks[0]->places[5].usability, 0);
    EXPECT_EQ(data.racks[0]->places[10].usability, 1);
}

TEST(StationReader, RefusesWhatIsTooMuchBeforeItCostsMemory)
{
    const TemporaryDirectory directory;
    // Sparse: as large as it says, and not on the disk.
    directory.Write("plant.json", "{");
    std::filesystem::resize_file(directory.File("plant.json"), LargestStationFile + 1);
    const FileError tooLarge = ErrorOf([&] { LoadStation(directory.File("plant.json"), ShippedCatalogue()); });
    EXPECT_THAT(tooLarge.reason, HasSubstr("the limit for such files, 64 MiB"));
    EXPECT_THAT(tooLarge.Reason(Language::German), HasSubstr("64 MiB"));

    std::string empties;
    for (int i = 0; i < 400; ++i) empties += "{},";
    const JsonLimits limits{.values = 500};
    const auto read = [&](const std::string& text) {
        return ErrorOf([&] {
            ParseStrictJson(text, "plant.json", limits, {"racks", [](const auto&, const auto&) {}});
        });
    };
    for (const std::string start : {"[", R"({"racks": [{"places": [)", R"({"other": [)", R"({"racks": [)"})
        EXPECT_THAT(read(start + empties + empties).reason, HasSubstr("more than 500 values")) << start;
    EXPECT_EQ(read(R"({"racks": [[)" + empties + "0], [" + empties + "0]]}").reason, "no error")
        << "what is taken is held no more";
}

TEST(StationReader, TellsWhyAFileCannotBeRead)
{
    EXPECT_THAT(ErrorOf([] { LoadStation("no/such.json", ShippedCatalogue()); }).what(),
                HasSubstr("no/such.json: there is no such file"));
    EXPECT_THAT(ErrorOf([] { LoadStation("/", ShippedCatalogue()); }).reason, HasSubstr("not a regular file"));
}

} // namespace
} // namespace zqbchwcx::reference
