#include "ContractSteps.h"
#include "ContractTest.h"

#include "foundation/model/VxHWModule.h"
#include "foundation/model/VxHWModules.h"
#include "foundation/model/VxHWRackPlace.h"
#include "foundation/model/VxHWRackPlaces.h"

#include <gtest/gtest.h>

#include <array>

namespace zqbchwcx::testing {
namespace {

void MembersKnowTheirParent(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    const VxHWModulePtr module = host.spanningModule();
    const std::int32_t span = module->PlaceCount();
    ASSERT_GE(span, 2);
    EXPECT_EQ(host.station->ExpandModule(module)->Count(), span);
    EXPECT_EQ(Insert(host, module, PlacePosition(host, first + 1))->Count(), span);

    const VxHWModulesPtr parents = host.factory->CreateModules();
    for (std::int32_t index = 1; index <= span; ++index) {
        const VxHWModulePtr member = ModuleOf(host, first + index);
        EXPECT_EQ(member->IndexInParent(), index);
        ASSERT_TRUE(member->ParentModule());
        EXPECT_EQ(member->ParentModule()->PlaceCount(), span);
        EXPECT_EQ(member->ParentModule()->IndexInParent(), 0);
        EXPECT_TRUE(host.station->HasGroupFrame(PlaceOf(host, first + index)));
        if (!parents->Contains(member->ParentModule())) parents->Add(member->ParentModule(), true);
    }
    EXPECT_EQ(parents->Count(), 1) << "all members have the same parent";
    EXPECT_TRUE(ModuleOf(host, first)->IsEmpty());
    EXPECT_TRUE(ModuleOf(host, first + span + 1)->IsEmpty());

    const VxHWRackPlacesPtr places = host.station->ParentModulePlaces(parents->Item(0));
    EXPECT_EQ(places->Count(), span);
    EXPECT_TRUE(places->Contains(PlaceOf(host, first + 1)));
    EXPECT_TRUE(places->Contains(PlaceOf(host, first + span)));
}

void AnyMemberStandsForTheWhole(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    const std::int32_t span = Insert(host, host.spanningModule(), PlacePosition(host, first))->Count();
    const std::int32_t member = first + span - 1;
    const std::int32_t target = first + 4;
    EXPECT_TRUE(host.station->MoveModules(PlacePosition(host, target), ModulesOf(host, {member}),
                                          PlacesOf(host, {member}), host.factory->CreateRackPlaces()));
    for (std::int32_t index = 0; index < span; ++index) {
        EXPECT_TRUE(ModuleOf(host, first + index)->IsEmpty());
        EXPECT_EQ(ModuleOf(host, target + index)->IndexInParent(), index + 1);
    }
    host.station->DeleteModules(PlacesOf(host, {target + 1}));
    for (std::int32_t index = 0; index < span; ++index) EXPECT_TRUE(ModuleOf(host, target + index)->IsEmpty());
}

void SpanIsNotCut(const ContractHost& host)
{
    Insert(host, host.spanningModule(), PlacePosition(host, host.firstPlace));
    const std::string before = Content(*host.station);
    const VxHWModulesPtr single = Collection(host, {host.singleModule()});
    const VxHWRackPlacesPtr places = host.factory->CreateRackPlaces();
    EXPECT_FALSE(host.station->PlaceModules(PlacePosition(host, host.firstPlace + 1), single, places));
    EXPECT_FALSE(host.station->PlaceModules(GapBefore(host, host.firstPlace + 1), single, places));
    EXPECT_EQ(Content(*host.station), before);
}

void SlotsAreFilled(const ContractHost& host)
{
    if (!host.moduleWithSlots) GTEST_SKIP() << "the host has no modules with sub-modules";
    const VxHWModulePtr module = host.moduleWithSlots();
    const bool spans = module->PlaceCount() >= 1;
    const std::int32_t slots = (spans ? host.station->ExpandModule(module)->Item(0) : module)->SubModuleCount();
    ASSERT_GE(slots, 1);
    Insert(host, module, PlacePosition(host, host.firstPlace));
    const VxHWModulePtr placed = ModuleOf(host, host.firstPlace);
    EXPECT_EQ(placed->SubModuleCount(), slots);
    EXPECT_EQ(placed->SubModules()->Count(), slots);
}

} // namespace

std::span<const ContractTest> SpanningContractTests()
{
    static constexpr std::array tests = {
        ContractTest{"MembersKnowTheirParent", false, MembersKnowTheirParent},
        ContractTest{"AnyMemberStandsForTheWhole", false, AnyMemberStandsForTheWhole},
        ContractTest{"SpanIsNotCut", false, SpanIsNotCut},
        ContractTest{"SlotsAreFilled", false, SlotsAreFilled},
    };
    return tests;
}

} // namespace zqbchwcx::testing
