#include "ContractTest.h"

#include <gtest/gtest.h>

#include <array>

namespace zqbchwcx::testing {
namespace {

void PlacingPutsCopiesAndTellsThePlaces(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    ToldPlaces told(*host.station);
    const VxHWModulePtr module = host.singleModule();
    EXPECT_EQ(Insert(host, module, PlacePosition(host, first))->Item(1)->Number(), first);
    EXPECT_TRUE(told.Has(PlaceOf(host, first)));
    EXPECT_FALSE(told.Has(PlaceOf(host, first + 1)));
    Insert(host, module, PlacePosition(host, first + 2));
    EXPECT_EQ(ModuleOf(host, first)->OrderNumber(), ModuleOf(host, first + 2)->OrderNumber());

    EXPECT_TRUE(host.station->SetModuleAttribute(PlaceOf(host, first), host.textAttribute, "one"));
    EXPECT_EQ(Texts(host), "one - +") << "two modules, not one that is shown twice";
}

void EmptyModulesKeepTheShapeOfABlock(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    const VxHWModulesPtr block =
        Collection(host, {host.singleModule(), host.factory->CreateModule(), host.singleModule()});
    const VxHWRackPlacesPtr places = host.factory->CreateRackPlaces();
    ASSERT_TRUE(host.station->PlaceModules(PlacePosition(host, first), block, places));
    EXPECT_EQ(places->Count(), 2) << "places that received modules";
    EXPECT_FALSE(ModuleOf(host, first)->IsEmpty());
    EXPECT_TRUE(ModuleOf(host, first + 1)->IsEmpty());
    EXPECT_FALSE(ModuleOf(host, first + 2)->IsEmpty());
}

void RefusedPlacingChangesNothing(const ContractHost& host)
{
    InsertNamed(host, host.firstPlace, "a");
    const std::string before = Content(*host.station);
    const VxHWModulesPtr modules = Collection(host, {host.singleModule()});
    const VxHWModulesPtr onlyEmpty = Collection(host, {host.factory->CreateModule()});
    ToldPlaces told(*host.station);
    const VxHWRackPlacesPtr places = host.factory->CreateRackPlaces();
    const auto expectRefused = [&](std::int32_t lPosition, const VxHWModulesPtr& refused) {
        EXPECT_FALSE(host.station->CanBePlaced(lPosition, refused, false, nullptr)) << lPosition;
        EXPECT_FALSE(host.station->PlaceModules(lPosition, refused, places)) << lPosition;
    };
    expectRefused(PlacePosition(host, host.firstPlace), modules);
    expectRefused(vxNoPosition, modules);
    expectRefused(G_PlacePosition(host.rack, 0), modules);
    expectRefused(G_PlacePosition(host.station->Racks()->Count(), 1), modules);
    expectRefused(PlacePosition(host, host.station->Racks()->Item(host.rack)->Places()->Count() + 1), modules);
    expectRefused(PlacePosition(host, host.firstPlace + 2), onlyEmpty);
    expectRefused(PlacePosition(host, host.firstPlace + 2), host.factory->CreateModules());
    EXPECT_EQ(places->Count(), 0);
    EXPECT_EQ(told.Count(), 0u);
    EXPECT_EQ(Content(*host.station), before);
}

void GapInsertsBetweenItsNeighbours(const ContractHost& host)
{
    InsertNamed(host, host.firstPlace, "a");
    InsertNamed(host, host.firstPlace + 1, "b");
    InsertNamed(host, host.firstPlace + 3, "c");
    Insert(host, host.singleModule(), GapBefore(host, host.firstPlace + 1));
    EXPECT_EQ(Texts(host), "a + b c");
}

void MovingKeepsTheModuleAndFreesItsSource(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    InsertNamed(host, first, "a");
    InsertNamed(host, first + 1, "b");
    const std::string address = ModuleOf(host, first + 1)->InputAddressText();
    const auto move = [&](std::initializer_list<std::int32_t> sources, std::int32_t target) {
        const VxHWModulesPtr modules = ModulesOf(host, sources);
        EXPECT_TRUE(host.station->CanBePlaced(PlacePosition(host, target), modules, true, PlacesOf(host, sources)));
        return host.station->MoveModules(PlacePosition(host, target), modules, PlacesOf(host, sources),
                                         host.factory->CreateRackPlaces());
    };
    ToldPlaces told(*host.station);
    EXPECT_TRUE(move({first, first + 1}, first + 1)) << "onto places that the move itself frees";
    EXPECT_EQ(Texts(host), "- a b");
    EXPECT_EQ(ModuleOf(host, first + 2)->InputAddressText(), address);
    EXPECT_TRUE(told.Has(PlaceOf(host, first)));
    EXPECT_TRUE(told.Has(PlaceOf(host, first + 2)));

    const VxHWModulesPtr moved = ModulesOf(host, {first + 2});
    EXPECT_FALSE(host.station->MoveModules(PlacePosition(host, first + 1), moved, PlacesOf(host, {first + 2}),
                                           host.factory->CreateRackPlaces()));
    EXPECT_EQ(Texts(host), "- a b") << "refused, for another module is there";
}

void DeletingEmptiesThePlaces(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    InsertNamed(host, first, "a");
    InsertNamed(host, first + 1, "b");
    ToldPlaces told(*host.station);
    host.station->DeleteModules(PlacesOf(host, {first, first + 4}));
    EXPECT_EQ(Texts(host), "- b");
    EXPECT_TRUE(told.Has(PlaceOf(host, first)));
    EXPECT_FALSE(told.Has(PlaceOf(host, first + 1)));
}

void AttributesAreWrittenAndTold(const ContractHost& host)
{
    Insert(host, host.singleModule(), PlacePosition(host, host.firstPlace));
    const VxHWModulePtr before = ModuleOf(host, host.firstPlace);
    ASSERT_TRUE(before->HasAttribute(host.textAttribute));
    EXPECT_FALSE(before->HasAttribute("NO SUCH ATTRIBUTE"));
    ToldPlaces told(*host.station);
    EXPECT_TRUE(host.station->SetModuleAttribute(PlaceOf(host, host.firstPlace), host.textAttribute, "päper"));
    EXPECT_EQ(ModuleOf(host, host.firstPlace)->GetAttribute(host.textAttribute), "päper");
    EXPECT_TRUE(told.Has(PlaceOf(host, host.firstPlace)));
}

void BatchIsToldWhenItIsOver(const ContractHost& host)
{
    EXPECT_TRUE(host.station->IsDrawable());
    host.station->IsDrawable(false);
    EXPECT_FALSE(host.station->IsDrawable());
    InsertNamed(host, host.firstPlace, "a");
    InsertNamed(host, host.firstPlace + 2, "b");
    ToldPlaces told(*host.station);
    host.station->IsDrawable(true);
    EXPECT_TRUE(host.station->IsDrawable());
    EXPECT_TRUE(told.Has(PlaceOf(host, host.firstPlace))) << "the views did not look before";
    EXPECT_TRUE(told.Has(PlaceOf(host, host.firstPlace + 2)));
}

void DropPlacesAgreeWithPlacing(const ContractHost& host)
{
    InsertNamed(host, host.firstPlace + 1, "a");
    const VxHWModulePtr module = host.singleModule();
    const Array2D<std::int32_t> possible = host.station->GetPossibleDropPlaces(module);
    for (const VxHWRackPlacePtr& place : AllPlaces(*host.station)) {
        const std::int32_t rack = place->Rack()->Number();
        EXPECT_EQ(possible.Get(rack, place->Number()) == -1,
                  host.station->CanBePlaced(G_PlacePosition(rack, place->Number()), Collection(host, {module}), false,
                                            nullptr))
            << place->Key();
    }
}

void ReadOnlyStationStaysAsItIs(const ContractHost& host)
{
    const std::string before = Content(*host.station);
    EXPECT_TRUE(host.station->IsReadOnly());
    const VxHWModulesPtr modules = Collection(host, {host.singleModule()});
    const std::int32_t position = PlacePosition(host, host.firstPlace);
    EXPECT_FALSE(host.station->CanBePlaced(position, modules, false, nullptr));
    EXPECT_FALSE(host.station->PlaceModules(position, modules, host.factory->CreateRackPlaces()));
    EXPECT_EQ(Content(*host.station), before);
    EXPECT_NE(host.station->GetPossibleDropPlaces(host.singleModule()).Get(host.rack, host.firstPlace), -1);
}

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

std::span<const ContractTest> EditingContractTests()
{
    static constexpr std::array tests = {
        ContractTest{"PlacingPutsCopiesAndTellsThePlaces", PlacingPutsCopiesAndTellsThePlaces},
        ContractTest{"EmptyModulesKeepTheShapeOfABlock", EmptyModulesKeepTheShapeOfABlock},
        ContractTest{"RefusedPlacingChangesNothing", RefusedPlacingChangesNothing},
        ContractTest{"GapInsertsBetweenItsNeighbours", GapInsertsBetweenItsNeighbours},
        ContractTest{"MovingKeepsTheModuleAndFreesItsSource", MovingKeepsTheModuleAndFreesItsSource},
        ContractTest{"DeletingEmptiesThePlaces", DeletingEmptiesThePlaces},
        ContractTest{"AttributesAreWrittenAndTold", AttributesAreWrittenAndTold},
        ContractTest{"BatchIsToldWhenItIsOver", BatchIsToldWhenItIsOver},
        ContractTest{"DropPlacesAgreeWithPlacing", DropPlacesAgreeWithPlacing},
        ContractTest{"ReadOnlyStationStaysAsItIs", ReadOnlyStationStaysAsItIs, true},
        ContractTest{"MembersKnowTheirParent", MembersKnowTheirParent},
        ContractTest{"AnyMemberStandsForTheWhole", AnyMemberStandsForTheWhole},
        ContractTest{"SpanIsNotCut", SpanIsNotCut},
        ContractTest{"SlotsAreFilled", SlotsAreFilled},
    };
    return tests;
}

} // namespace zqbchwcx::testing
