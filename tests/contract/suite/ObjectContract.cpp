#include "ContractTest.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace zqbchwcx::testing {
namespace {

void RacksAndPlacesAreNumbered(const ContractHost& host)
{
    const VxHWRacksPtr racks = host.station->Racks();
    std::set<std::string> keys;
    std::int32_t rackNumber = 0;
    for (const VxHWRackPtr& rack : *racks) {
        EXPECT_EQ(rack->Number(), rackNumber);
        EXPECT_EQ(racks->Item(rackNumber)->Number(), rackNumber);
        ++rackNumber;
        std::int32_t placeNumber = 0;
        const VxHWRackPlacesPtr places = rack->Places();
        for (const VxHWRackPlacePtr& place : *places) {
            EXPECT_EQ(place->Number(), ++placeNumber);
            EXPECT_EQ(places->Item(placeNumber)->Key(), place->Key());
            EXPECT_EQ(place->Rack()->Number(), rack->Number());
            EXPECT_TRUE(keys.insert(place->Key()).second) << place->Key() << " names two places";
        }
        EXPECT_EQ(placeNumber, places->Count());
    }
    EXPECT_EQ(rackNumber, racks->Count());
    EXPECT_ANY_THROW(racks->Item(racks->Count()));
    EXPECT_ANY_THROW(racks->Item(0)->Places()->Item(0));
    EXPECT_ANY_THROW(racks->Item(0)->Places()->Item(racks->Item(0)->Places()->Count() + 1));
}

void EveryPlaceHasAModule(const ContractHost& host)
{
    for (const VxHWRackPlacePtr& place : AllPlaces(*host.station)) ASSERT_TRUE(place->Module()) << place->Key();
    const VxHWModulePtr empty = ModuleOf(host, host.firstPlace);
    EXPECT_TRUE(empty->IsEmpty());
    EXPECT_EQ(empty->IndexInParent(), 0);
    EXPECT_LT(empty->PlaceCount(), 1);
    EXPECT_FALSE(empty->HasParamDialog());
    EXPECT_FALSE(host.station->HasGroupFrame(PlaceOf(host, host.firstPlace)));
}

void PlacesKeepTheirIdentity(const ContractHost& host)
{
    const VxHWRackPlacesPtr places = PlacesOf(host, {host.firstPlace + 2, host.firstPlace});
    EXPECT_TRUE(places->Contains(PlaceOf(host, host.firstPlace)));
    EXPECT_FALSE(places->Contains(PlaceOf(host, host.firstPlace + 1)));
    EXPECT_EQ(places->Item(1)->Number(), host.firstPlace + 2) << "in the order of adding";
    EXPECT_EQ((*places->begin())->Number(), host.firstPlace + 2);
    EXPECT_ANY_THROW(places->Item(0));
    EXPECT_ANY_THROW(places->Item(3));
    places->Remove(PlaceOf(host, host.firstPlace + 2)->Key());
    EXPECT_EQ(places->Count(), 1);
    EXPECT_FALSE(places->Contains(PlaceOf(host, host.firstPlace + 2)));
    EXPECT_ANY_THROW(places->Remove("no such key"));
    places->Clear();
    EXPECT_EQ(places->Count(), 0);
    EXPECT_FALSE(places->Contains(PlaceOf(host, host.firstPlace)));
}

void ModulesKeepTheirIdentity(const ContractHost& host)
{
    Insert(host, host.singleModule(), PlacePosition(host, host.firstPlace));
    Insert(host, host.singleModule(), PlacePosition(host, host.firstPlace + 1));
    const VxHWModulesPtr modules = ModulesOf(host, {host.firstPlace, host.firstPlace + 3});
    EXPECT_TRUE(modules->Contains(ModuleOf(host, host.firstPlace)));
    EXPECT_FALSE(modules->Contains(ModuleOf(host, host.firstPlace + 1))) << "the same type is not the same module";
    EXPECT_EQ(modules->Count(), 2) << "an empty module counts";
    EXPECT_TRUE(modules->Item(1)->IsEmpty());
    EXPECT_ANY_THROW(modules->Item(2));
    EXPECT_ANY_THROW(modules->Item(-1));
    modules->Clear();
    EXPECT_EQ(modules->Count(), 0);
}

void FactoryMakesNewEmptyObjects(const ContractHost& host)
{
    const VxHWRackPlacesPtr places = host.factory->CreateRackPlaces();
    EXPECT_EQ(places->Count(), 0);
    places->Add(PlaceOf(host, host.firstPlace));
    EXPECT_EQ(host.factory->CreateRackPlaces()->Count(), 0);
    EXPECT_EQ(host.factory->CreateModules()->Count(), 0);
    EXPECT_TRUE(host.factory->CreateModule()->IsEmpty());
    EXPECT_EQ(host.factory->CreateModule()->IndexInParent(), 0);
}

} // namespace

std::span<const ContractTest> ObjectContractTests()
{
    static constexpr std::array tests = {
        ContractTest{"RacksAndPlacesAreNumbered", RacksAndPlacesAreNumbered},
        ContractTest{"EveryPlaceHasAModule", EveryPlaceHasAModule},
        ContractTest{"PlacesKeepTheirIdentity", PlacesKeepTheirIdentity},
        ContractTest{"ModulesKeepTheirIdentity", ModulesKeepTheirIdentity},
        ContractTest{"FactoryMakesNewEmptyObjects", FactoryMakesNewEmptyObjects},
    };
    return tests;
}

} // namespace zqbchwcx::testing
