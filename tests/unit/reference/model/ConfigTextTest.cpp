#include "zqbchwcx/reference/model/configtext/ConfigText.h"
#include "tests/support/model/SampleModel.h"
#include "zqbchwcx/foundation/VxError.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace zqbchwcx::testing {
namespace {

using namespace reference;
using ::testing::HasSubstr;

/// Why the text is refused; empty when it is read.
std::string ReasonAgainst(std::string_view text)
{
    try {
        static_cast<void>(ReadConfigText(text, *SampleCatalogue()));
    } catch (const VxError& error) {
        EXPECT_GE(error.number, RefusalErrorBase);
        return error.description;
    }
    return {};
}

ModuleBlock BlockWithEverything()
{
    PlainStation station(EmptyStation(0, 1));
    station.Place(G_PlacePosition(0, 4), Block("DI - CNT3 + + AI2 +"));
    const std::pair<const char*, const char*> attributes[] = {
        {"NAME", "Ventil \"7\" \\ \t ä€😀"}, {"COMMENT", "line 1\nline 2"}, {"PARAMETER alarm", "1"},
        {"PARAMETER delay", "7"},           {"PARAMETER scale", "0.1"},    {"PARAMETER edge", "falling"}};
    for (const auto& [name, value] : attributes) station.Set({0, 4}, name, value);
    const auto at = [&](std::int32_t place) { return std::make_shared<ModuleData>(station.At({0, place})); };
    return {at(4), nullptr, at(6), nullptr, nullptr, at(9)};
}

TEST(ConfigText, RoundTripIsExact)
{
    const ModuleBlock block = BlockWithEverything();
    const ModuleBlock read = ReadConfigText(WriteConfigText(block), *SampleCatalogue());
    EXPECT_TRUE(std::equal(read.begin(), read.end(), block.begin(), block.end(),
                           [](const ModuleDataPtr& a, const ModuleDataPtr& b) { return a && b ? *a == *b : a == b; }));
    EXPECT_TRUE(ReadConfigText(WriteConfigText({}), *SampleCatalogue()).empty());
}

TEST(ConfigText, RefusesWithAReason)
{
    const std::string head = "VxHWConfigText 1\n";
    const std::pair<std::string, std::string> cases[] = {
        {"", "does not begin with"},
        {"vxhwconfigtext 1\n{\"modules\":[]}", "does not begin with"},
        {"VxHWConfigText 2\n{\"modules\":[]}", "another version"},
        {"VxHWConfigText 12\n{\"modules\":[]}", "another version"},
        {head + "[]", "object"},
        {head + "{\"modules\":[],\"more\":1}", "more"},
        {head + "{}", "modules"},
        {head + "{\"modules\":[7]}", "/modules/0"},
        {head + R"({"modules":[null,{"orderNumber":"HQ-NEW"}]})", "\"HQ-NEW\""},
        {head + R"({"modules":[{"orderNumber":"DI","parameters":{"delay":21}}]})", "delay"},
        {head + R"({"modules":[{"orderNumber":"DI","parameters":{"other":1}}]})", "other"},
        {head + R"({"modules":[{"orderNumber":"CNT3","subModules":[{"orderNumber":"SUB"}]}]})", "sub-modules"},
    };
    for (const auto& [text, reason] : cases) EXPECT_THAT(ReasonAgainst(text), HasSubstr(reason)) << text;
}

} // namespace
} // namespace zqbchwcx::testing
