#include "foundation/model/VxHWModule.h"
#include "foundation/model/VxHWRack.h"
#include "foundation/model/VxHWRackPlace.h"
#include "foundation/model/VxHWRackPlaces.h"
#include "foundation/model/VxHWRacks.h"
#include "reference/history/History.h"
#include "reference/model/configtext/ConfigText.h"
#include "reference/model/contract/RackPlaces.h"
#include "reference/model/rules/CheckStation.h"
#include "tests/unit/reference/model/SampleModel.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>
#include <set>

namespace zqbchwcx::testing {
namespace {

using namespace reference;

/// Someone who edits at random, right and wrong alike.
class RandomEditor {
public:
    RandomEditor(StationPtr oStation, std::uint32_t seed) : moStation(std::move(oStation)), moRandom(seed) {}

    void Edit()
    {
        const bool batch = Below(4) == 0;
        if (batch) moStation->IsDrawable(false);
        for (std::int32_t i = batch ? Below(3) + 1 : 1; i > 0; --i) EditOnce();
        if (batch) moStation->IsDrawable(true);
    }

    std::int32_t Below(std::int32_t limit)
    {
        return static_cast<std::int32_t>(moRandom() % static_cast<unsigned>(limit));
    }

private:
    void EditOnce()
    {
        const auto result = std::make_shared<RackPlaces>();
        const VxHWRackPlacesPtr places = SomePlaces();
        switch (Below(6)) {
        case 0:
            moStation->DeleteModules(places);
            break;
        case 1:
            moStation->MoveModules(Position(), ModulesIn(*places), places, result);
            break;
        case 2:
            moStation->PlaceModules(Position(), ModulesIn(*places), result);
            break;
        case 3:
            moStation->SetModuleAttribute(PlaceAtRandom(), "I-ADDRESS", std::to_string(Below(40)));
            break;
        default:
            moStation->PlaceModules(Position(), moStation->ExpandModule(NewModule()), result);
            break;
        }
    }

    VxHWModulePtr NewModule()
    {
        const auto& types = SampleCatalogue()->Types();
        return moStation->CreateModule(
            types[static_cast<std::size_t>(Below(static_cast<std::int32_t>(types.size())))].orderNumber);
    }

    std::int32_t Rack() { return Below(static_cast<std::int32_t>(moStation->Data().racks.size())); }
    std::int32_t Position() { return G_PlacePosition(Rack(), 0) + Below(26); }
    VxHWRackPlacePtr PlaceAtRandom()
    {
        const VxHWRackPlacesPtr places = moStation->Racks()->Item(Rack())->Places();
        return places->Item(1 + Below(places->Count()));
    }
    VxHWRackPlacesPtr SomePlaces()
    {
        const auto places = std::make_shared<RackPlaces>();
        for (std::int32_t i = 1 + Below(4); i > 0; --i) places->Add(PlaceAtRandom());
        return places;
    }
    VxHWModulesPtr ModulesIn(const VxHWRackPlaces& places)
    {
        const auto modules = std::make_shared<Modules>(moStation->Context());
        for (const VxHWRackPlacePtr& place : places) modules->Add(place->Module(), true);
        return moStation->ModulesFromConfigText(modules->ConfigText(), nullptr);
    }

    StationPtr moStation;
    std::mt19937 moRandom;
};

std::string Facts(const VxHWModule& module)
{
    return module.OrderNumber() + "#" + std::to_string(module.IndexInParent()) + " " + module.InputAddressText() + " " +
           module.OutputAddressText();
}

/// What the station shows, by place, as a view would read it.
std::map<std::string, std::string> Picture(const Station& station)
{
    std::map<std::string, std::string> picture;
    for (std::int32_t rack = 0; rack < station.Racks()->Count(); ++rack) {
        const VxHWRackPlacesPtr places = station.Racks()->Item(rack)->Places();
        for (const VxHWRackPlacePtr& place : *places) picture[place->Key()] = Facts(*place->Module());
    }
    return picture;
}

class RandomEdits : public ::testing::TestWithParam<int> {};

TEST_P(RandomEdits, KeepTheRulesAndCanAllBeUndone)
{
    const char* wanted = std::getenv("QUILLON_SEED");
    const auto seed = static_cast<std::uint32_t>(wanted ? std::strtoul(wanted, nullptr, 10) : 24071);
    StationData first = EmptyStation(GetParam(), GetParam() == 0 ? 3 : 1);
    PlainStation plain(first);
    plain.Usability({0, 7}, 0);
    plain.Usability({0, 9}, -1);
    first = plain.Data();
    const auto station = std::make_shared<Station>(SampleContext(), first);
    History history(station);
    RandomEditor editor(station, seed);

    // A view that reads again only what it is told.
    std::map<std::string, std::string> told = Picture(*station);
    const EventConnection events = station->RackPlaceChange.Connect(
        [&](const VxHWRackPlacePtr& place) { told[place->Key()] = Facts(*place->Module()); });

    for (int step = 0; step < 3000; ++step) {
        editor.Edit();
        if (editor.Below(5) == 0) history.Undo();
        if (editor.Below(10) == 0) history.Redo();
        const std::vector<Refusal> broken = CheckStation(station->Data(), *SampleCatalogue());
        ASSERT_TRUE(broken.empty()) << "seed " << seed << " step " << step << ": " << broken.front().text.en;
        ASSERT_EQ(told, Picture(*station)) << "seed " << seed << " step " << step;
    }
    while (history.Redo()) {
    }
    const StationData last = station->Data();
    EXPECT_FALSE(SameStation(first, last)) << "seed " << seed << ": nothing was ever accepted";
    while (history.Undo()) {
    }
    EXPECT_TRUE(SameStation(station->Data(), first)) << "seed " << seed;
    EXPECT_FALSE(history.IsModified());
    while (history.Redo()) {
    }
    EXPECT_TRUE(SameStation(station->Data(), last)) << "seed " << seed;
    EXPECT_EQ(told, Picture(*station));
}

INSTANTIATE_TEST_SUITE_P(KindsOfStation, RandomEdits, ::testing::Values(0, 1, 2));

} // namespace
} // namespace zqbchwcx::testing
