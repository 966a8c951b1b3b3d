#include "tests/support/Samples.h"
#include "zqbchwcx/reference/model/rules/CheckStation.h"
#include "zqbchwcx/reference/model/rules/ModuleRules.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace zqbchwcx::reference {
namespace {

using namespace ::testing;

void CollectOrderNumbers(const std::vector<CatalogueGroup>& groups, std::multiset<std::string>& all)
{
    for (const CatalogueGroup& group : groups) {
        EXPECT_FALSE(group.orderNumbers.empty() && group.groups.empty()) << group.name.en;
        all.insert(group.orderNumbers.begin(), group.orderNumbers.end());
        CollectOrderNumbers(group.groups, all);
    }
}

TEST(ShippedCatalogue, ShowsEachTypeOnceInItsTree)
{
    std::multiset<std::string> shown;
    CollectOrderNumbers(ShippedCatalogue().Groups(), shown);
    for (const ModuleType& type : ShippedCatalogue().Types())
        EXPECT_EQ(shown.count(type.orderNumber), type.isSubModule ? 0U : 1U) << type.orderNumber;
}

/// Built-in pictures are drawn from the list of the kind of station; a key of another kind would draw nothing.
TEST(ShippedCatalogue, NamesPicturesOfItsKindOfStation)
{
    for (const ModuleType& type : ShippedCatalogue().Types()) {
        if (type.isSubModule || !type.picture.starts_with("IDB_")) continue;
        EXPECT_EQ(type.FitsStation(0), type.picture.starts_with("IDB_CRX_MODULE_")) << type.orderNumber;
        EXPECT_EQ(type.FitsStation(1), type.picture.starts_with("IDB_RIOA_MODULE_")) << type.orderNumber;
        EXPECT_EQ(type.FitsStation(2), type.picture.starts_with("IDB_RIOB_MODULE_")) << type.orderNumber;
        if (!type.FitsStation(0)) continue; // the others have no view yet, and no pictures
        const std::string file = zqbchwcx::testing::SourceFile("assets/pictures/" + type.picture + ".svg");
        EXPECT_TRUE(std::filesystem::exists(file)) << file;
    }
}

TEST(ShippedCatalogue, MakesModulesThatObeyTheirOwnTypes)
{
    std::set<ModuleFamily> families;
    for (const ModuleType& type : ShippedCatalogue().Types()) {
        families.insert(type.family);
        const ModuleData module = NewModule(type, ShippedCatalogue());
        EXPECT_THAT(AgainstModule(module, ShippedCatalogue(), {0, 4}), IsEmpty()) << type.orderNumber;
        EXPECT_THAT(module.subModules, SizeIs(type.subModules.size())) << type.orderNumber;
    }
    EXPECT_THAT(families, SizeIs(8)) << "the catalogue shows every family";
}

TEST(Examples, BreakOnlyTheRulesThatTheyTeach)
{
    std::map<std::string, std::set<std::string_view>> rules;
    for (const std::string& file : ExampleFiles())
        for (const Refusal& refusal : CheckStation(LoadStation(file, ShippedCatalogue()).data, ShippedCatalogue()))
            rules[FileNameOf(file)].insert(RuleId(refusal.rule));
    EXPECT_THAT(rules,
                ElementsAre(Pair("training-mistakes.station.json",
                                 ElementsAre("address-overlap", "leader-missing", "place-occupied", "station-kind",
                                             "unknown-type", "value-not-allowed", "wrong-place"))));
}

} // namespace
} // namespace zqbchwcx::reference
