#include "tests/support/Samples.h"
#include "zqbchwcx/reference/commands/CheckReport.h"
#include "zqbchwcx/reference/commands/ModuleListText.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace zqbchwcx::reference {
namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

const std::vector<ModuleRow> Awkward = {
    {0, 4, 0, "DI,16", "Q3-DI16-A", "0..1", "", "says \"stop\" and waits"},
    {1, 11, 2, "a|b\\c", "X", "", "4", "Größe\r\nzwei"},
};

TEST(ModuleList, FollowsRacksPlacesAndSubModules)
{
    const auto rows = ListModules(ExampleStation("tank-farm"), ShippedCatalogue(), Language::German);
    ASSERT_GE(rows.size(), 10U);
    EXPECT_EQ(rows[1].orderNumber, "Q3-CP30-C");
    EXPECT_EQ(rows[1].module, "CPU 330C");
    const ModuleRow levels{0, 2, 1, "Level switches", "Q3-CP30-DI", "0..1", "", ""};
    EXPECT_EQ(rows[2], levels);
    EXPECT_EQ(rows.back().module, "Platzhalter");
}

TEST(ModuleListText, QuotesCsvAsOtherProgramsReadIt)
{
    EXPECT_EQ(WriteModuleList(Awkward, ListFormat::Csv, Language::English),
              "Rack,Place,Sub-module,Module,Order number,I address,O address,Comment\r\n"
              "0,4,,\"DI,16\",Q3-DI16-A,0..1,,\"says \"\"stop\"\" and waits\"\r\n"
              "1,11,2,a|b\\c,X,,4,\"Größe\r\nzwei\"\r\n");
}

TEST(ModuleListText, KeepsTablesWhole)
{
    const std::string markdown = WriteModuleList(Awkward, ListFormat::Markdown, Language::German);
    EXPECT_THAT(markdown, StartsWith("| Träger | Platz |"));
    EXPECT_THAT(markdown, HasSubstr("| 1 | 11 | 2 | a\\|b\\\\c | X |  | 4 | Größe<br>zwei |\n"));
    EXPECT_EQ(WriteModuleList(Awkward, ListFormat::Plain, Language::German),
              "Träger  Platz  Submodul  Baugruppe  Bestellnummer  E-Adresse  A-Adresse  Kommentar\n"
              "0       4                DI,16      Q3-DI16-A      0..1                  says \"stop\" and waits\n"
              "1       11     2         a|b\\c      X                         4          Größe  zwei\n");
    const auto json = nlohmann::json::parse(WriteModuleList(Awkward, ListFormat::Json, Language::German));
    EXPECT_EQ(json[1]["comment"], "Größe\r\nzwei");
    EXPECT_EQ(json[0].count("outputs"), 0U);
}

TEST(ModuleListText, ShowsForeignTextsAsText)
{
    const std::vector<ModuleRow> hostile = {
        {0, 1, 0, "a\x1b[2J\x07\u009b1m", "\u202Eb\u2066", "\u2028", "\x7f", "<img src=x> *[x](y)* `_&lt;"}};
    const auto text = [&](ListFormat format) {
        const std::string all = WriteModuleList(hostile, format, Language::English);
        return all.substr(all.rfind('\n', all.size() - 2) + 1);
    };
    EXPECT_THAT(text(ListFormat::Plain), StartsWith("0     1                  a [2J  1m  b    "));
    EXPECT_THAT(text(ListFormat::Plain), EndsWith("    <img src=x> *[x](y)* `_&lt;\n"));
    EXPECT_EQ(text(ListFormat::Markdown),
              "| 0 | 1 |  | a \\[2J  1m | b |   |   | \\<img src=x> \\*\\[x](y)\\* \\`\\_\\&lt; |\n");
    const std::vector<Refusal> found = {{Rule::WrongPlace, {0, 4}, {"No\x1b[1m\nreally.", ""}}};
    EXPECT_EQ(WriteCheckReport(found, "a\nb.json", Language::English),
              "a b.json: place 4 of rack 0: wrong-place: No [1m really.\n");
}

TEST(CheckReport, SaysFilePlaceRuleAndReason)
{
    const std::vector<Refusal> found = {{Rule::WrongPlace, {0, 4}, {"No.", "Nein."}}, {Rule::ReadOnly, {}, {"R", "S"}}};
    EXPECT_EQ(WriteCheckReport(found, "a.json", Language::English),
              "a.json: place 4 of rack 0: wrong-place: No.\na.json: read-only: R\n");
    EXPECT_EQ(WriteCheckReport({}, "a.json", Language::German), "");
}

} // namespace
} // namespace zqbchwcx::reference
