#include "reference/model/configtext/ConfigText.h"
#include "foundation/VxError.h"
#include "tests/unit/reference/model/SampleModel.h"

#include <gmock/gmock.h>

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
    station.Place(G_PlacePosition(0, 4), Block({"DI", "", "CNT3", "AI2"}));
    station.Set({0, 4}, "NAME", "Ventil \"7\" \\ \t ä€😀");
    station.Set({0, 4}, "COMMENT", "line 1\nline 2");
    station.Set({0, 4}, "PARAMETER alarm", "1");
    station.Set({0, 4}, "PARAMETER delay", "7");
    station.Set({0, 4}, "PARAMETER scale", "0.1");
    station.Set({0, 4}, "PARAMETER edge", "falling");
    const auto at = [&](std::int32_t place) { return std::make_shared<ModuleData>(station.At({0, place})); };
    return {at(4), nullptr, at(6), nullptr, nullptr, at(9)};
}

TEST(ConfigText, RoundTripIsExact)
{
    const ModuleBlock block = BlockWithEverything();
    const ModuleBlock read = ReadConfigText(WriteConfigText(block), *SampleCatalogue());
    ASSERT_EQ(read.size(), block.size());
    for (std::size_t i = 0; i < block.size(); ++i) {
        ASSERT_EQ(static_cast<bool>(read[i]), static_cast<bool>(block[i])) << i;
        if (block[i]) {
            EXPECT_EQ(*read[i], *block[i]) << i;
        }
    }
    EXPECT_TRUE(ReadConfigText(WriteConfigText({}), *SampleCatalogue()).empty());
}

TEST(ConfigText, EveryCutOffIsRefused)
{
    const std::string text = WriteConfigText(BlockWithEverything());
    for (std::size_t length = 0; length < text.size(); ++length)
        EXPECT_NE(ReasonAgainst(std::string_view(text).substr(0, length)), "") << length;
}

TEST(ConfigText, RefusesWithAReason)
{
    const std::string head = "VxHWConfigText 1\n";
    const struct {
        std::string text, reason;
    } cases[] = {
        {"", "does not begin with"},
        {"vxhwconfigtext 1\n{\"modules\":[]}", "does not begin with"},
        {"VxHWConfigText 2\n{\"modules\":[]}", "another version"},
        {"VxHWConfigText 12\n{\"modules\":[]}", "another version"},
        {head + "[]", "object"},
        {head + "{\"modules\":[],\"more\":1}", "more"},
        {head + "{}", "modules"},
        {head + "{\"modules\":[7]}", "/modules/0"},
        {head + "{\"modules\":[]}{}", ""},
        {head + "{\"modules\":[],\"modules\":[]}", "modules"},
        {head + R"({"modules":[null,{"orderNumber":"HQ-NEW"}]})", "\"HQ-NEW\""},
        {head + R"({"modules":[{"orderNumber":"DI","colour":"red"}]})", "colour"},
        {head + R"({"modules":[{"orderNumber":"DI","parameters":{"delay":21}}]})", "delay"},
        {head + R"({"modules":[{"orderNumber":"DI","parameters":{"other":1}}]})", "other"},
        {head + R"({"modules":[{"orderNumber":"CNT3","subModules":[{"orderNumber":"SUB"}]}]})", "sub-modules"},
        {head + R"({"modules":[{"orderNumber":"DI","inputAddress":1e99}]})", "inputAddress"},
        {head + std::string(1000, '['), ""},
        {head + "{\"modules\":[\"\xff\"]}", ""},
    };
    for (const auto& c : cases) {
        const std::string reason = ReasonAgainst(c.text);
        EXPECT_NE(reason, "") << c.text;
        EXPECT_THAT(reason, HasSubstr(c.reason)) << c.text;
    }
}

} // namespace
} // namespace zqbchwcx::testing
