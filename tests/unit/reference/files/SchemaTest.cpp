#include "reference/json/StationNames.h"
#include "tests/support/Samples.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <set>

namespace zqbchwcx::reference {
namespace {

using nlohmann::json;

json Schema(const std::string& name)
{
    return json::parse(
        ReadFile(SystemFiles(), zqbchwcx::testing::SourceFile("docs/" + std::string(name)), LargestStationFile));
}

template <class Table>
std::set<std::string> NamesIn(const Table& table)
{
    std::set<std::string> names;
    for (const auto& entry : table) names.insert(std::string(entry.name));
    return names;
}

/// Offers the reader every member that the published schema knows; one that it calls unknown is not there any more.
void ExpectKnown(const json& definition, json station, const json::json_pointer& object)
{
    for (const auto& [name, property] : definition.at("properties").items()) {
        json offered = station;
        offered[object / name] = json::array({nullptr});
        const FileError error = ErrorOf([&] { ParseStation(offered.dump(), "s", ShippedCatalogue()); });
        EXPECT_THAT(error.reason, ::testing::Not(::testing::HasSubstr("unknown"))) << object / name;
    }
}

TEST(StationSchema, SaysWhatTheReaderReads)
{
    const json schema = Schema("station-schema.json");
    const json& properties = schema["properties"];
    const json& definitions = schema["$defs"];
    const json& module = definitions["module"]["properties"];
    EXPECT_EQ(properties["format"]["const"], StationFormat);
    EXPECT_EQ(properties["version"]["const"], StationFormatVersion);
    EXPECT_EQ(properties["kind"]["enum"].get<std::set<std::string>>(), NamesIn(StationKindNames));
    EXPECT_EQ(definitions["place"]["properties"]["usability"]["enum"].get<std::set<std::string>>(),
              NamesIn(UsabilityNames));
    EXPECT_EQ(properties["racks"]["maxItems"], MaxRacks);
    EXPECT_EQ(definitions["rack"]["properties"]["placeCount"]["maximum"], MaxPlaces);
    EXPECT_EQ(module["inputAddress"]["maximum"], MaxAddress);
    EXPECT_EQ(module["comment"]["maxLength"], MaxTextBytes);
    EXPECT_EQ(module["parameters"]["maxProperties"], MaxParameters);
    EXPECT_EQ(module["subModules"]["maxItems"], MaxSubModules);

    const json station = json::parse(R"({"format": "quillon-station", "version": 1, "name": "", "kind": "central",
        "racks": [{"placeCount": 1, "places": [{"place": 1, "module": {"orderNumber": "A",
                   "subModules": [{"orderNumber": "B"}]}}]}]})");
    ExpectKnown(schema, station, json::json_pointer(""));
    ExpectKnown(definitions["rack"], station, json::json_pointer("/racks/0"));
    ExpectKnown(definitions["place"], station, json::json_pointer("/racks/0/places/0"));
    ExpectKnown(definitions["module"], station, json::json_pointer("/racks/0/places/0/module"));
    ExpectKnown(definitions["subModule"], station, json::json_pointer("/racks/0/places/0/module/subModules/0"));
}

} // namespace
} // namespace zqbchwcx::reference
