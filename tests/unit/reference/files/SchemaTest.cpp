#include "reference/json/StationNames.h"
#include "tests/support/Samples.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <set>
#include <utility>

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

/// Names, required members and fixed values; ranges are the reader's business.
void ExpectFits(const json& root, const json& schema, const json& value, const std::string& at)
{
    if (schema.contains("$ref"))
        return ExpectFits(root, root.at(json::json_pointer(schema["$ref"].get<std::string>().substr(1))), value, at);
    if (schema.contains("const")) {
        EXPECT_EQ(value, schema["const"]) << at;
    }
    if (schema.contains("enum")) {
        EXPECT_THAT(schema["enum"], ::testing::Contains(value)) << at;
    }
    if (value.is_array() && schema.contains("items")) {
        for (const json& element : value) ExpectFits(root, schema["items"], element, at + "/-");
    }
    if (!value.is_object() || schema.value("type", "") != "object") return;
    for (const json& name : schema.value("required", json::array())) EXPECT_TRUE(value.contains(name)) << at << name;
    const json properties = schema.value("properties", json::object());
    const json others = schema.value("additionalProperties", json(true));
    for (const auto& [name, member] : value.items()) {
        if (properties.contains(name)) ExpectFits(root, properties[name], member, at + "/" + name);
        else if (others.is_object()) ExpectFits(root, others, member, at + "/" + name);
        else if (others == false) ADD_FAILURE() << at << "/" << name << " is unknown to the schema";
    }
}

TEST(Schemas, FitTheFilesThatAreShipped)
{
    for (const auto& [schemaName, folder] :
         {std::pair("catalogue-schema.json", "assets/catalogue"), std::pair("station-schema.json", "examples")}) {
        const json schema = Schema(schemaName);
        int count = 0;
        for (const std::string& name : ListFiles(SystemFiles(), zqbchwcx::testing::SourceFile(folder))) {
            if (!name.ends_with(".json")) continue;
            const auto file = zqbchwcx::testing::SourceFile(std::string(folder) + "/" + name);
            ExpectFits(schema, schema, json::parse(ReadFile(SystemFiles(), file, LargestStationFile)), name);
            ++count;
        }
        EXPECT_GE(count, 4) << folder;
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
