#include "tests/support/MemoryClipboard.h"
#include "tests/support/model/SampleModel.h"
#include "zqbchwcx/foundation/ConfigTextCodec.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/reference/model/configtext/ConfigText.h"
#include "zqbchwcx/reference/model/contract/Module.h"
#include "zqbchwcx/reference/model/contract/RackPlaces.h"
#include "zqbchwcx/reference/model/contract/TypeExchange.h"

#include <gmock/gmock.h>

namespace zqbchwcx::testing {
namespace {

using namespace reference;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Rack 0: PS CPU IM DI AI2 + - DO; and what the station tells, as text.
class ReferenceStation : public ::testing::Test {
protected:
    ReferenceStation()
    {
        PlainStation plain(EmptyStation(0, 2));
        plain.Place(G_PlacePosition(0, 1), Block("PS CPU IM DI AI2 + - DO"));
        services.clipboard = clipboard;
        services.parameterDialog = [this](const ModuleData&, PlaceRef) { return dialogAnswer; };
        station = std::make_shared<Station>(SampleContext(), plain.Data(), services);
        placeEvents =
            station->RackPlaceChange.Connect([this](const VxHWRackPlacePtr& place) { events.push_back(place->Key()); });
        refreshes = station->TotalRefresh.Connect([this] { events.push_back("all"); });
        refusals = station->Refused.Connect([this](const Refusal& refusal) { refused.push_back(refusal.rule); });
    }

    VxHWModulePtr ModuleIn(std::int32_t place) const { return station->PlaceAt({0, place})->Module(); }
    VxHWModulesPtr ModulesIn(std::initializer_list<std::int32_t> places) const
    {
        auto modules = std::make_shared<Modules>(station->Context());
        for (const std::int32_t place : places) modules->Add(ModuleIn(place), true);
        return modules;
    }
    VxHWRackPlacesPtr Places(std::initializer_list<std::int32_t> places) const
    {
        auto collection = std::make_shared<RackPlaces>();
        for (const std::int32_t place : places) collection->Add(station->PlaceAt({0, place}));
        return collection;
    }

    std::shared_ptr<MemoryClipboard> clipboard = std::make_shared<MemoryClipboard>();
    std::optional<ModuleData> dialogAnswer;
    StationServices services;
    StationPtr station;
    std::vector<std::string> events;
    std::vector<Rule> refused;
    EventConnection placeEvents, refreshes, refusals;
};

TEST_F(ReferenceStation, AnyMemberStandsForItsWholeModuleInOrderOfPlaces)
{
    // The second member of AI2, behind the module of place 8.
    const auto members = ModulesIn({8, 6, 7});
    const ModuleBlock block = BlockOf(*members);
    ASSERT_EQ(block.size(), 3u);
    const auto other = ModulesIn({5});
    EXPECT_EQ(block[0], BlockOf(*other)[0]);
    EXPECT_EQ(block[1], nullptr);
    const auto both = ModulesIn({6, 8, 5});
    EXPECT_EQ(BlockOf(*both).size(), 2u) << "both members of AI2";
}

TEST_F(ReferenceStation, MembersShowTheirPartOfTheModule)
{
    const VxHWModulePtr first = ModuleIn(5);
    const VxHWModulePtr second = ModuleIn(6);
    EXPECT_EQ(first->InputAddressText(), "4..11");
    EXPECT_EQ(second->InputAddressText(), "") << "an address is shown once";
    EXPECT_FALSE(second->HasAttribute("I-ADDRESS"));
    EXPECT_TRUE(second->HasAttribute("COMMENT"));
    EXPECT_EQ(first->GetAttribute("I-ADDRESS"), first->InputAddressText()) << "an untouched cell is no change";
    EXPECT_TRUE(station->SetModuleAttribute(station->PlaceAt({0, 6}), "COMMENT", "level"));
    EXPECT_EQ(ModuleIn(5)->GetAttribute("Comment"), "level");
    EXPECT_THAT(events, ElementsAre("0/5", "0/6"));
}

TEST(ReferenceModules, HaveAPictureWhereTheirKindOfStationShowsThem)
{
    const auto pictureIn = [](std::int32_t kind, const std::string& orderNumber) {
        PlainStation plain(EmptyStation(kind, 1));
        plain.PutUnchecked({0, 1}, *NewModuleData(orderNumber));
        return Station(SampleContext(), plain.Data()).PlaceAt({0, 1})->Module()->PictureName();
    };
    EXPECT_EQ(pictureIn(1, "HEAD2"), "HEAD2");
    EXPECT_EQ(pictureIn(0, "HEAD2"), "");
    EXPECT_EQ(pictureIn(0, "UNKNOWN"), "");

    const auto carriedTo = [](std::int32_t kind) {
        const std::string text = WriteConfigText(Block("HEAD2"));
        return Station(SampleContext(), EmptyStation(kind, 1))
            .ModulesFromConfigText(text, nullptr)
            ->Item(0)
            ->PictureName();
    };
    EXPECT_EQ(carriedTo(1), "HEAD2");
    EXPECT_EQ(carriedTo(0), "") << "a drag draws it, too";
}

TEST_F(ReferenceStation, TellsEachPlaceThatDiffersAndEverythingAfterABatch)
{
    EXPECT_TRUE(station->MoveModules(G_PlacePosition(0, 9), ModulesIn({5}), Places({5}), Places({})));
    EXPECT_THAT(events, ElementsAre("0/5", "0/6", "0/9", "0/10"));
    events.clear();
    station->IsDrawable(false);
    station->IsDrawable(true);
    EXPECT_THAT(events, ElementsAre("all")) << "views have missed at least the selection";
    events.clear();
    StationData other = station->Data();
    other.readOnly = true;
    station->Restore(other);
    EXPECT_THAT(events, ElementsAre("all"));
}

TEST_F(ReferenceStation, RefusalsAnswerFalseAndSayWhy)
{
    EXPECT_FALSE(station->PlaceModules(G_PlacePosition(0, 3), ModulesIn({4}), Places({})));
    EXPECT_FALSE(station->SetModuleAttribute(station->PlaceAt({0, 4}), "I-ADDRESS", "4"));
    EXPECT_THAT(refused, ElementsAre(Rule::WrongPlace, Rule::AddressOverlap));
    EXPECT_THAT(events, ElementsAre("0/4")) << "who shows the typed value has to show the old one again";
}

TEST_F(ReferenceStation, DamagedContentOfTheClipboardCountsAsNone)
{
    const auto exchange = std::make_shared<TypeExchange>(std::int16_t{77}, clipboard);
    clipboard->Write(ConfigTextName, G_EncodeConfigText("VxHWConfigText 1\n{\"modules\""));
    EXPECT_EQ(station->ClipboardModules()->Count(), 0);
    EXPECT_THAT(refused, ElementsAre(Rule::DamagedText));
    EXPECT_THROW(exchange->LoadData(G_EncodeConfigText("something else")), VxError);
    EXPECT_THROW(static_cast<void>(station->CreateModule("GHOST")), VxError);
}

TEST_F(ReferenceStation, ParameterDialogChangesTheModuleWhenItsAnswerIsAllowed)
{
    EXPECT_TRUE(ModuleIn(4)->HasParamDialog());
    EXPECT_FALSE(ModuleIn(8)->HasParamDialog());
    EXPECT_EQ(station->OpenModuleParamDialog(station->PlaceAt({0, 4})), 0) << "cancelled";
    dialogAnswer = *Module::Of(ModuleIn(4)).Body()->data;
    dialogAnswer->parameters["delay"] = std::int64_t{9};
    EXPECT_EQ(station->OpenModuleParamDialog(station->PlaceAt({0, 4})), 1);
    EXPECT_EQ(ModuleIn(4)->GetAttribute("PARAMETER DELAY"), "9");
    dialogAnswer = *NewModuleData("CP");
    EXPECT_EQ(station->OpenModuleParamDialog(station->PlaceAt({0, 4})), 0);
    EXPECT_EQ(ModuleIn(4)->OrderNumber(), "DI") << "a dialog changes no type";
}

TEST_F(ReferenceStation, TooltipsTellWhatIsThere)
{
    station->SetModuleAttribute(station->PlaceAt({0, 4}), "COMMENT", "Gate 3");
    EXPECT_EQ(station->ModuleTooltip(ModuleIn(4)), "DI module\r\nDI\r\nA DI\r\nInputs 0..1\r\nGate 3");
    EXPECT_EQ(station->EmptyPlaceTooltip(station->PlaceAt({0, 7})), "Place 7: free");
}

} // namespace
} // namespace zqbchwcx::testing
