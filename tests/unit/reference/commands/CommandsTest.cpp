#include "tests/support/Samples.h"
#include "zqbchwcx/reference/commands/CheckReport.h"
#include "zqbchwcx/reference/commands/ModuleListText.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace zqbchwcx::reference {
namespace {

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

TEST(CheckReport, SaysFilePlaceRuleAndReason)
{
    const std::vector<Refusal> found = {{Rule::WrongPlace, {0, 4}, {"No.", "Nein."}}, {Rule::ReadOnly, {}, {"R", "S"}}};
    EXPECT_EQ(WriteCheckReport(found, "a.json", Language::English),
              "a.json: place 4 of rack 0: wrong-place: No.\na.json: read-only: R\n");
    EXPECT_EQ(WriteCheckReport({}, "a.json", Language::German), "");
}

} // namespace
} // namespace zqbchwcx::reference
