#pragma once

#include "zqbchwcx/contract/ModelContract.h"

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace zqbchwcx::testing {

/// The steps that contract tests are made of.

/// Every place of the station, rack by rack.
inline std::vector<VxHWRackPlacePtr> AllPlaces(const VxHWStation& station)
{
    std::vector<VxHWRackPlacePtr> all;
    const VxHWRacksPtr racks = station.Racks();
    for (const VxHWRackPtr& rack : *racks) {
        const VxHWRackPlacesPtr places = rack->Places();
        for (const VxHWRackPlacePtr& place : *places) all.push_back(place);
    }
    return all;
}

inline VxHWRackPlacePtr PlaceOf(const ContractHost& host, std::int32_t lPlace)
{
    return host.station->Racks()->Item(host.rack)->Places()->Item(lPlace);
}

inline VxHWModulePtr ModuleOf(const ContractHost& host, std::int32_t lPlace)
{
    return PlaceOf(host, lPlace)->Module();
}

inline VxHWRackPlacesPtr PlacesOf(const ContractHost& host, std::initializer_list<std::int32_t> places)
{
    VxHWRackPlacesPtr collection = host.factory->CreateRackPlaces();
    for (const std::int32_t place : places) collection->Add(PlaceOf(host, place));
    return collection;
}

/// The modules in the places, as a selection of them would give.
inline VxHWModulesPtr ModulesOf(const ContractHost& host, std::initializer_list<std::int32_t> places)
{
    VxHWModulesPtr collection = host.factory->CreateModules();
    for (const std::int32_t place : places) collection->Add(ModuleOf(host, place), true);
    return collection;
}

inline VxHWModulesPtr Collection(const ContractHost& host, std::initializer_list<VxHWModulePtr> modules)
{
    VxHWModulesPtr collection = host.factory->CreateModules();
    for (const VxHWModulePtr& module : modules) collection->Add(module, true);
    return collection;
}

inline std::int32_t PlacePosition(const ContractHost& host, std::int32_t lPlace)
{
    return G_PlacePosition(host.rack, lPlace);
}

/// The gap in front of the place.
inline std::int32_t GapBefore(const ContractHost& host, std::int32_t lPlace)
{
    return G_GapPosition(host.rack, lPlace - 1);
}

/// Places a module as a host's insert command does; the places that received it.
inline VxHWRackPlacesPtr Insert(const ContractHost& host, const VxHWModulePtr& oModule, std::int32_t lPosition)
{
    host.station->PrepareModule(oModule);
    const bool spans = oModule->PlaceCount() >= 1;
    const VxHWModulesPtr modules = spans ? host.station->ExpandModule(oModule) : Collection(host, {oModule});
    const VxHWModulePtr first = modules->Item(0);
    if (first->SubModuleCount() >= 1 && first->SubModules()->Count() == 0) host.station->CreateSubModules(first);
    VxHWRackPlacesPtr places = host.factory->CreateRackPlaces();
    EXPECT_TRUE(host.station->CanBePlaced(lPosition, modules, false, nullptr)) << "at position " << lPosition;
    EXPECT_TRUE(host.station->PlaceModules(lPosition, modules, places)) << "at position " << lPosition;
    return places;
}

/// Inserts single modules from the run's first place on, with these texts: "a b - c" ("-" leaves a place empty).
inline void Fill(const ContractHost& host, const std::string& texts)
{
    std::istringstream words(texts);
    std::int32_t place = host.firstPlace;
    for (std::string text; words >> text; ++place) {
        if (text == "-") continue;
        Insert(host, host.singleModule(), PlacePosition(host, place));
        EXPECT_TRUE(host.station->SetModuleAttribute(PlaceOf(host, place), host.textAttribute, text));
    }
}

/// Everything that a view could show of the station, as text.
inline std::string Content(const VxHWStation& station)
{
    std::string content;
    for (const VxHWRackPlacePtr& place : AllPlaces(station)) {
        const VxHWModulePtr module = place->Module();
        content += place->Key() + " " + std::to_string(place->Usability());
        if (!module->IsEmpty())
            content += " " + module->OrderNumber() + " " + module->Name() + " " +
                       std::to_string(module->IndexInParent()) + " " + module->InputAddressText() + " " +
                       module->OutputAddressText() + " " + std::to_string(module->SubModules()->Count());
        content += "\n";
    }
    return content;
}

/// The texts of the run's modules, as they are filled in ("+": a module without a text).
inline std::string Texts(const ContractHost& host)
{
    std::string texts;
    for (std::int32_t place = host.firstPlace; place <= host.lastPlace; ++place) {
        const VxHWModulePtr module = ModuleOf(host, place);
        const std::string text = module->IsEmpty() ? "-" : module->GetAttribute(host.textAttribute);
        texts += (place > host.firstPlace ? " " : "") + (text.empty() ? "+" : text);
    }
    return texts.substr(0, texts.find_last_not_of(" -") + 1);
}

/// The keys of the places that the station told.
class ToldPlaces {
public:
    explicit ToldPlaces(VxHWStation& station)
        : moPlaceChange(station.RackPlaceChange.Connect(
              [this](const VxHWRackPlacePtr& place) { mcolKeys.insert(place->Key()); })),
          moTotalRefresh(station.TotalRefresh.Connect([this] { mbEverything = true; }))
    {
    }

    bool Has(const VxHWRackPlacePtr& oPlace) const { return mbEverything || mcolKeys.contains(oPlace->Key()); }
    std::size_t Count() const { return mcolKeys.size(); }

private:
    std::set<std::string> mcolKeys;
    bool mbEverything = false;
    EventConnection moPlaceChange;
    EventConnection moTotalRefresh;
};

} // namespace zqbchwcx::testing
