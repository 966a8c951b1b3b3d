#include "zqbchwcx/contract/ContractSteps.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

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
        EXPECT_EQ(placeNumber, racks->Item(0)->Places()->Count()) << "selections take racks as equally long";
    }
    EXPECT_EQ(rackNumber, racks->Count());
    EXPECT_ANY_THROW(racks->Item(racks->Count()));
    EXPECT_ANY_THROW(racks->Item(0)->Places()->Item(0));
    EXPECT_ANY_THROW(racks->Item(0)->Places()->Item(racks->Item(0)->Places()->Count() + 1));
}

void EveryPlaceHasAModule(const ContractHost& host)
{
    for (const VxHWRackPlacePtr& place : AllPlaces(*host.station)) ASSERT_TRUE(place->Module()) << place->Key();
    for (const VxHWModulePtr& empty : {ModuleOf(host, host.firstPlace), host.factory->CreateModule()}) {
        EXPECT_TRUE(empty->IsEmpty());
        EXPECT_EQ(empty->IndexInParent(), 0);
        EXPECT_LT(empty->PlaceCount(), 1);
        EXPECT_FALSE(empty->HasParamDialog());
    }
    EXPECT_FALSE(host.station->HasGroupFrame(PlaceOf(host, host.firstPlace)));
}

void PlacesKeepTheirIdentity(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    const VxHWRackPlacesPtr places = PlacesOf(host, {first + 2, first});
    EXPECT_TRUE(places->Contains(PlaceOf(host, first)));
    EXPECT_FALSE(places->Contains(PlaceOf(host, first + 1)));
    EXPECT_EQ(places->Item(1)->Number(), first + 2) << "in the order of adding";
    EXPECT_EQ((*places->begin())->Number(), first + 2);
    EXPECT_ANY_THROW(places->Item(0));
    EXPECT_ANY_THROW(places->Item(3));
    places->Remove(PlaceOf(host, first + 2)->Key());
    EXPECT_FALSE(places->Contains(PlaceOf(host, first + 2)));
    EXPECT_ANY_THROW(places->Remove("no such key"));
    EXPECT_EQ(places->Count(), 1);
    EXPECT_EQ(host.factory->CreateRackPlaces()->Count(), 0) << "a collection of its own";
    places->Clear();
    EXPECT_EQ(places->Count(), 0);
}

void ModulesKeepTheirIdentity(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    Fill(host, "a a");
    const VxHWModulesPtr modules = ModulesOf(host, {first, first + 3});
    EXPECT_TRUE(modules->Contains(ModuleOf(host, first)));
    EXPECT_FALSE(modules->Contains(ModuleOf(host, first + 1))) << "the same type is not the same module";
    EXPECT_EQ(modules->Count(), 2) << "an empty module counts";
    EXPECT_TRUE(modules->Item(1)->IsEmpty());
    EXPECT_ANY_THROW(modules->Item(2));
    EXPECT_ANY_THROW(modules->Item(-1));
    EXPECT_EQ(host.factory->CreateModules()->Count(), 0) << "a collection of its own";
    modules->Clear();
    EXPECT_EQ(modules->Count(), 0);
}

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
    EXPECT_EQ(Texts(host), "+ - +");
}

void RefusedPlacingChangesNothing(const ContractHost& host)
{
    Fill(host, "a");
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
    Fill(host, "a b - c");
    Insert(host, host.singleModule(), GapBefore(host, host.firstPlace + 1));
    EXPECT_EQ(Texts(host), "a + b c");
}

void MovingKeepsTheModuleAndFreesItsSource(const ContractHost& host)
{
    const std::int32_t first = host.firstPlace;
    Fill(host, "a b");
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
    Fill(host, "a b");
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

    ToldPlaces toldAgain(*host.station);
    EXPECT_TRUE(host.station->SetModuleAttribute(PlaceOf(host, host.firstPlace), host.textAttribute, "päper"));
    EXPECT_TRUE(toldAgain.Has(PlaceOf(host, host.firstPlace))) << "what was typed may look different";
}

void BatchIsToldWhenItIsOver(const ContractHost& host)
{
    EXPECT_TRUE(host.station->IsDrawable());
    host.station->IsDrawable(false);
    EXPECT_FALSE(host.station->IsDrawable());
    Fill(host, "a - b");
    ToldPlaces told(*host.station);
    host.station->IsDrawable(true);
    EXPECT_TRUE(host.station->IsDrawable());
    EXPECT_TRUE(told.Has(PlaceOf(host, host.firstPlace))) << "the views did not look before";
    EXPECT_TRUE(told.Has(PlaceOf(host, host.firstPlace + 2)));
}

void DropPlacesAgreeWithPlacing(const ContractHost& host)
{
    Fill(host, "- a");
    const VxHWModulePtr single = host.singleModule();
    const VxHWModulePtr spanning = host.spanningModule();
    for (const auto& [module, modules] :
         {std::pair(single, Collection(host, {single})), std::pair(spanning, host.station->ExpandModule(spanning))}) {
        const Array2D<std::int32_t> possible = host.station->GetPossibleDropPlaces(module);
        for (const VxHWRackPlacePtr& place : AllPlaces(*host.station)) {
            const std::int32_t rack = place->Rack()->Number();
            const std::int32_t position = G_PlacePosition(rack, place->Number());
            EXPECT_EQ(possible.Get(rack, place->Number()) == -1,
                      host.station->CanBePlaced(position, modules, false, nullptr))
                << place->Key();
        }
    }
}

void LockedStationStaysAsItIs(const ContractHost& host)
{
    const std::string before = Content(*host.station);
    EXPECT_TRUE(host.station->IsReadOnly());
    const VxHWModulesPtr modules = Collection(host, {host.singleModule()});
    const std::int32_t position = PlacePosition(host, host.firstPlace);
    const auto expectReason = [&](const char* operation) {
        if (!host.takeReason) return;
        EXPECT_NE(host.takeReason(), "") << operation;
    };
    EXPECT_FALSE(host.station->CanBePlaced(position, modules, false, nullptr));
    EXPECT_FALSE(host.station->PlaceModules(position, modules, host.factory->CreateRackPlaces()));
    expectReason("PlaceModules");
    for (const VxHWRackPlacePtr& place : AllPlaces(*host.station)) {
        if (place->Module()->IsEmpty()) continue;
        EXPECT_FALSE(host.station->SetModuleAttribute(place, host.textAttribute, "new"));
        expectReason("SetModuleAttribute");
        const VxHWRackPlacesPtr source = host.factory->CreateRackPlaces();
        source->Add(place);
        const VxHWModulesPtr moved = Collection(host, {place->Module()});
        EXPECT_FALSE(host.station->MoveModules(position, moved, source, host.factory->CreateRackPlaces()));
        expectReason("MoveModules");
        host.station->DeleteModules(source);
        expectReason("DeleteModules");
        EXPECT_EQ(host.station->OpenModuleParamDialog(place), 0);
    }
    EXPECT_EQ(Content(*host.station), before);
    EXPECT_NE(host.station->GetPossibleDropPlaces(host.singleModule()).Get(host.rack, host.firstPlace), -1);
}

void OnlineStationStaysAsItIs(const ContractHost& host)
{
    EXPECT_NE(host.station->DisplayMode(), vxDisplayModeOffline);
    LockedStationStaysAsItIs(host);
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

/// Places of the run from its first one: "a", free, a spanning module, perhaps free, "b".
VxHWModulesPtr SampleBlock(const ContractHost& host)
{
    Fill(host, "a - - - - b");
    const std::int32_t first = host.firstPlace;
    Insert(host, host.spanningModule(), PlacePosition(host, first + 2));
    return ModulesOf(host, {first, first + 1, first + 2, first + 3, first + 4, first + 5});
}

void ExpectSameModules(const VxHWModules& expected, const VxHWModules& modules, const std::string& textAttribute)
{
    ASSERT_EQ(modules.Count(), expected.Count());
    for (std::int32_t i = 0; i < modules.Count(); ++i) {
        EXPECT_EQ(modules.Item(i)->OrderNumber(), expected.Item(i)->OrderNumber());
        EXPECT_EQ(modules.Item(i)->IndexInParent(), expected.Item(i)->IndexInParent());
        EXPECT_EQ(modules.Item(i)->GetAttribute(textAttribute), expected.Item(i)->GetAttribute(textAttribute));
    }
}

void ConfigTextCarriesModulesAndShape(const ContractHost& host)
{
    const VxHWModulesPtr block = SampleBlock(host);
    const std::string before = Content(*host.station);
    const VxHWModulesPtr read = host.station->ModulesFromConfigText(block->ConfigText(), nullptr);
    ExpectSameModules(*block, *read, host.textAttribute);
    EXPECT_EQ(Content(*host.station), before) << "reading places nothing";
    EXPECT_EQ(host.station->ModulesFromConfigText(host.factory->CreateModules()->ConfigText(), nullptr)->Count(), 0);
}

void DamagedConfigTextGivesNoModules(const ContractHost& host)
{
    const std::string text = SampleBlock(host)->ConfigText();
    const std::string before = Content(*host.station);
    // Cut off within its first three quarters it lacks modules at least, whatever the text looks like.
    for (std::size_t length = 1; length < text.size() * 3 / 4; ++length) {
        try {
            const VxHWModulesPtr modules =
                host.station->ModulesFromConfigText(std::string_view(text).substr(0, length), nullptr);
            EXPECT_EQ(modules->Count(), 0) << "cut off after " << length << " characters";
        } catch (const VxError& error) {
            EXPECT_FALSE(error.description.empty());
        }
    }
    EXPECT_EQ(Content(*host.station), before);
}

void ExchangeObjectCarriesModules(const ContractHost& host)
{
    if (!host.exchangeObject) GTEST_SKIP() << "the host has no exchange object";
    const VxHWModulesPtr block = SampleBlock(host);
    const ExchangeDataPtr written = host.exchangeObject();
    written->StartEmpty();
    host.station->WriteModulesToExchange(block, written);
    const ExchangeDataPtr received = host.exchangeObject();
    EXPECT_EQ(received->FormatId(), written->FormatId());
    received->LoadData(written->Data());
    EXPECT_EQ(received->Data(), written->Data());
    const VxHWModulesPtr read = host.station->ModulesFromConfigText(block->ConfigText(), received);
    ExpectSameModules(*block, *read, host.textAttribute);
}

void ClipboardCarriesModules(const ContractHost& host)
{
    if (!host.exchangeObject) GTEST_SKIP() << "the host has no exchange object";
    EXPECT_EQ(host.station->ClipboardModules()->Count(), 0);
    const VxHWModulesPtr block = SampleBlock(host);
    const ExchangeDataPtr exchange = host.exchangeObject();
    exchange->StartEmpty();
    host.station->WriteModulesToExchange(block, exchange);
    exchange->PutOnClipboard();
    const VxHWModulesPtr read = host.station->ClipboardModules();
    ExpectSameModules(*block, *read, host.textAttribute);
}

void ComparingTellsWhatChangedByTheLastCompare(const ContractHost& host)
{
    if (!host.compareWithItself) GTEST_SKIP() << "the host compares no stations";
    Fill(host, "a b c");
    const auto compare = host.compareWithItself();
    compare->Compare();
    EXPECT_GE(compare->CompareType(), 0);
    EXPECT_LE(compare->CompareType(), 2);
    const VxHWRackPlacePtr changed = PlaceOf(host, host.firstPlace);
    const VxHWRackPlacePtr emptied = PlaceOf(host, host.firstPlace + 1);
    EXPECT_TRUE(host.station->SetModuleAttribute(changed, host.textAttribute, "new"));
    host.station->DeleteModules(PlacesOf(host, {host.firstPlace + 1}));
    for (const VxHWRackPlacePtr& place : AllPlaces(*host.station))
        EXPECT_EQ(compare->PlaceResult(place), vxCompareEqual) << place->Key() << ", before it is compared again";
    compare->Compare();
    EXPECT_EQ(compare->PlaceResult(emptied), vxCompareOnlyOther);
    EXPECT_EQ(compare->PlaceResult(PlaceOf(host, host.firstPlace + 2)), vxCompareEqual);
    EXPECT_GE(compare->PlaceResult(changed), vxCompareParametersDiffer);
    EXPECT_LE(compare->PlaceResult(changed), vxCompareParametersDiffer2);

    const ParameterDifferencesPtr differences = compare->ParameterDifferencesOf(changed);
    ASSERT_TRUE(differences);
    std::int32_t count = 0;
    std::set<std::string> values;
    for (const ParameterDifferencePtr& each : differences) {
        EXPECT_EQ(each->Path(), differences->Item(++count)->Path());
        EXPECT_TRUE(each->Kind() >= vxDifferenceOther && each->Kind() <= vxDifferenceAddress) << each->Kind();
        values.insert(each->Value1() + " -> " + each->Value2());
    }
    EXPECT_TRUE(values.contains("new -> a"));
    EXPECT_EQ(count, differences->Count());
    EXPECT_ANY_THROW(differences->Item(0));
    EXPECT_ANY_THROW(differences->Item(count + 1));
}

/// One rule of the contract and the test of it.
struct Rule {
    const char* name;
    void (*test)(const ContractHost& host);
    ContractStation station = ContractStation::Editable;
};

constexpr Rule Rules[] = {
    {"RacksAndPlacesAreNumbered", RacksAndPlacesAreNumbered},
    {"EveryPlaceHasAModule", EveryPlaceHasAModule},
    {"PlacesKeepTheirIdentity", PlacesKeepTheirIdentity},
    {"ModulesKeepTheirIdentity", ModulesKeepTheirIdentity},
    {"PlacingPutsCopiesAndTellsThePlaces", PlacingPutsCopiesAndTellsThePlaces},
    {"EmptyModulesKeepTheShapeOfABlock", EmptyModulesKeepTheShapeOfABlock},
    {"RefusedPlacingChangesNothing", RefusedPlacingChangesNothing},
    {"GapInsertsBetweenItsNeighbours", GapInsertsBetweenItsNeighbours},
    {"MovingKeepsTheModuleAndFreesItsSource", MovingKeepsTheModuleAndFreesItsSource},
    {"DeletingEmptiesThePlaces", DeletingEmptiesThePlaces},
    {"AttributesAreWrittenAndTold", AttributesAreWrittenAndTold},
    {"BatchIsToldWhenItIsOver", BatchIsToldWhenItIsOver},
    {"DropPlacesAgreeWithPlacing", DropPlacesAgreeWithPlacing},
    {"ReadOnlyStationStaysAsItIs", LockedStationStaysAsItIs, ContractStation::ReadOnly},
    {"OnlineStationStaysAsItIs", OnlineStationStaysAsItIs, ContractStation::Online},
    {"MembersKnowTheirParent", MembersKnowTheirParent},
    {"AnyMemberStandsForTheWhole", AnyMemberStandsForTheWhole},
    {"SpanIsNotCut", SpanIsNotCut},
    {"SlotsAreFilled", SlotsAreFilled},
    {"ConfigTextCarriesModulesAndShape", ConfigTextCarriesModulesAndShape},
    {"DamagedConfigTextGivesNoModules", DamagedConfigTextGivesNoModules},
    {"ExchangeObjectCarriesModules", ExchangeObjectCarriesModules},
    {"ClipboardCarriesModules", ClipboardCarriesModules},
    {"ComparingTellsWhatChangedByTheLastCompare", ComparingTellsWhatChangedByTheLastCompare},
};

class ContractCase : public ::testing::Test {
public:
    ContractCase(Rule rule, ContractHostFactory factory) : moRule(rule), mFactory(std::move(factory)) {}

    void TestBody() override
    {
        const ContractHost host = mFactory(moRule.station);
        if (!host.station && moRule.station != ContractStation::Editable)
            GTEST_SKIP() << "the host has no such station";
        ASSERT_TRUE(host.station && host.factory && host.singleModule && host.spanningModule);
        ASSERT_GE(host.lastPlace - host.firstPlace, 7) << "the run of places is too short for the tests";
        moRule.test(host);
    }

private:
    Rule moRule;
    ContractHostFactory mFactory;
};

} // namespace

void RegisterModelContract(const std::string& hostName, const ContractHostFactory& factory)
{
    for (const Rule& rule : Rules)
        ::testing::RegisterTest(hostName.c_str(), rule.name, nullptr, nullptr, __FILE__, __LINE__,
                                [rule, factory]() -> ::testing::Test* { return new ContractCase(rule, factory); });
}

} // namespace zqbchwcx::testing
