#include "reference/model/rules/CheckStation.h"
#include "reference/model/rules/ModuleRules.h"
#include "tests/support/Samples.h"

#include <gmock/gmock.h>

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

TEST(ShippedCatalogue, HoldsEveryKindOfModule)
{
    std::set<ModuleFamily> families;
    std::set<std::int32_t> spans;
    int withSubModules = 0;
    for (const ModuleType& type : ShippedCatalogue().Types()) {
        families.insert(type.family);
        spans.insert(type.placeCount);
        withSubModules += type.subModules.empty() ? 0 : 1;
    }
    EXPECT_EQ(families.size(), 8U);
    EXPECT_THAT(spans, ElementsAre(1, 2, 3));
    EXPECT_GE(withSubModules, 3);
    EXPECT_GE(ShippedCatalogue().Types().size(), 40U);
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
    const std::set<std::string> central = {"IDB_CRX_MODULE_PS",          "IDB_CRX_MODULE_CPU",
                                           "IDB_CRX_MODULE_CPUC",        "IDB_CRX_MODULE_CPUM",
                                           "IDB_CRX_MODULE_IM",          "IDB_CRX_MODULE_IO_ANALOG",
                                           "IDB_CRX_MODULE_IO_DIGITAL",  "IDB_CRX_MODULE_DEFAULT",
                                           "IDB_CRX_MODULE_DUMMY",       "IDB_CRX_MODULE_MERID_CPU",
                                           "IDB_CRX_MODULE_MERID_IM",    "IDB_CRX_MODULE_MERID_IO_ANALOG",
                                           "IDB_CRX_MODULE_MERID_DUMMY", "IDB_CRX_MODULE_MERID_IO_DIGITAL"};
    const std::set<std::string> terrace = {"IDB_RIOA_MODULE_IMCPU", "IDB_RIOA_MODULE_SMTYPE1",
                                           "IDB_RIOA_MODULE_SMTYPE2", "IDB_RIOA_MODULE_SMTYPE3"};
    const std::set<std::string> atoll = {"IDB_RIOB_MODULE_ALPHA", "IDB_RIOB_MODULE_BETA",    "IDB_RIOB_MODULE_GAMMA",
                                         "IDB_RIOB_MODULE_DELTA", "IDB_RIOB_MODULE_EPSILON", "IDB_RIOB_MODULE_ZETA",
                                         "IDB_RIOB_MODULE_ETA"};
    std::set<std::string> used;
    for (const ModuleType& type : ShippedCatalogue().Types()) {
        if (type.isSubModule || !type.picture.starts_with("IDB_")) continue;
        used.insert(type.picture);
        EXPECT_EQ(type.FitsStation(0), central.contains(type.picture)) << type.orderNumber;
        EXPECT_EQ(type.FitsStation(1), terrace.contains(type.picture)) << type.orderNumber;
        EXPECT_EQ(type.FitsStation(2), atoll.contains(type.picture)) << type.orderNumber;
    }
    EXPECT_EQ(used.size(), central.size() + terrace.size() + atoll.size()) << "a picture is not used";
}

TEST(ShippedCatalogue, MakesModulesThatObeyTheirOwnTypes)
{
    for (const ModuleType& type : ShippedCatalogue().Types()) {
        const ModuleData module = NewModule(type, ShippedCatalogue());
        EXPECT_THAT(AgainstModule(module, ShippedCatalogue(), {0, 4}), IsEmpty()) << type.orderNumber;
        EXPECT_THAT(module.subModules, SizeIs(type.subModules.size())) << type.orderNumber;
    }
}

TEST(Examples, ObeyTheRulesUnlessTheyTeachThem)
{
    std::set<std::int32_t> kinds;
    for (const std::string& file : ExampleFiles()) {
        if (file.find("mistakes") != std::string::npos) continue;
        const StationData station = LoadStation(file, ShippedCatalogue()).data;
        kinds.insert(station.kind);
        for (const Refusal& refusal : CheckStation(station, ShippedCatalogue()))
            ADD_FAILURE() << file << ": " << PlaceText(refusal.place).en << ": " << refusal.text.en;
    }
    EXPECT_THAT(kinds, ElementsAre(0, 1, 2));
}

TEST(Examples, BreakTheRulesThatTheyTeach)
{
    std::set<std::string_view> rules;
    for (const Refusal& refusal : CheckStation(ExampleStation("training-mistakes"), ShippedCatalogue()))
        rules.insert(RuleId(refusal.rule));
    EXPECT_THAT(rules, ElementsAre("address-overlap", "leader-missing", "place-occupied", "station-kind",
                                   "unknown-type", "value-not-allowed", "wrong-place"));
}

} // namespace
} // namespace zqbchwcx::reference
