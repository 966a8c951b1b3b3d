#include "tests/support/Samples.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <utility>

namespace zqbchwcx::reference {
namespace {

using nlohmann::json;

json Load(const std::string& file)
{
    return json::parse(ReadFile(SystemFiles(), zqbchwcx::testing::SourceFile(file), LargestStationFile));
}

/// Names; values are the reader's business.
void ExpectFits(const json& root, const json& schema, const json& value, const std::string& at)
{
    if (schema.contains("$ref"))
        return ExpectFits(root, root.at(json::json_pointer(schema["$ref"].get<std::string>().substr(1))), value, at);
    if (value.is_array() && schema.contains("items"))
        for (const json& element : value) ExpectFits(root, schema["items"], element, at + "/-");
    if (!value.is_object() || schema.value("type", "") != "object") return;
    const json properties = schema.value("properties", json::object());
    const json others = schema.value("additionalProperties", json(true));
    for (const auto& [name, member] : value.items()) {
        const std::string where = std::string(at).append("/").append(name);
        if (properties.contains(name)) ExpectFits(root, properties[name], member, where);
        else if (others.is_object()) ExpectFits(root, others, member, where);
        else if (others == false) ADD_FAILURE() << where << " is unknown to the schema";
    }
}

TEST(Schemas, KnowEveryMemberOfTheFilesThatAreShipped)
{
    for (const auto& [schemaFile, folder] : {std::pair("docs/catalogue-schema.json", "assets/catalogue/"),
                                             std::pair("docs/station-schema.json", "examples/")}) {
        const json schema = Load(schemaFile);
        const auto names = ListFiles(SystemFiles(), zqbchwcx::testing::SourceFile(folder));
        EXPECT_FALSE(names.empty());
        for (const std::string& name : names)
            if (name.ends_with(".json")) ExpectFits(schema, schema, Load(folder + name), name);
    }
}

} // namespace
} // namespace zqbchwcx::reference
