#include "ContractSteps.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zqbchwcx::testing {

std::vector<VxHWRackPlacePtr> AllPlaces(const VxHWStation& station)
{
    std::vector<VxHWRackPlacePtr> all;
    const VxHWRacksPtr racks = station.Racks();
    for (const VxHWRackPtr& rack : *racks) {
        const VxHWRackPlacesPtr places = rack->Places();
        for (const VxHWRackPlacePtr& place : *places) all.push_back(place);
    }
    return all;
}

VxHWRackPlacePtr PlaceOf(const ContractHost& host, std::int32_t lPlace)
{
    return host.station->Racks()->Item(host.rack)->Places()->Item(lPlace);
}

VxHWModulePtr ModuleOf(const ContractHost& host, std::int32_t lPlace)
{
    return PlaceOf(host, lPlace)->Module();
}

VxHWRackPlacesPtr PlacesOf(const ContractHost& host, std::initializer_list<std::int32_t> places)
{
    VxHWRackPlacesPtr collection = host.factory->CreateRackPlaces();
    for (const std::int32_t place : places) collection->Add(PlaceOf(host, place));
    return collection;
}

VxHWModulesPtr ModulesOf(const ContractHost& host, std::initializer_list<std::int32_t> places)
{
    VxHWModulesPtr collection = host.factory->CreateModules();
    for (const std::int32_t place : places) collection->Add(ModuleOf(host, place), true);
    return collection;
}

VxHWModulesPtr Collection(const ContractHost& host, std::initializer_list<VxHWModulePtr> modules)
{
    VxHWModulesPtr collection = host.factory->CreateModules();
    for (const VxHWModulePtr& module : modules) collection->Add(module, true);
    return collection;
}

std::int32_t PlacePosition(const ContractHost& host, std::int32_t lPlace)
{
    return G_PlacePosition(host.rack, lPlace);
}

std::int32_t GapBefore(const ContractHost& host, std::int32_t lPlace)
{
    return G_GapPosition(host.rack, lPlace - 1);
}

VxHWRackPlacesPtr Insert(const ContractHost& host, const VxHWModulePtr& oModule, std::int32_t lPosition)
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

void InsertNamed(const ContractHost& host, std::int32_t lPlace, const std::string& text)
{
    Insert(host, host.singleModule(), PlacePosition(host, lPlace));
    EXPECT_TRUE(host.station->SetModuleAttribute(PlaceOf(host, lPlace), host.textAttribute, text));
}

std::string Content(const VxHWStation& station)
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

std::string Texts(const ContractHost& host)
{
    std::string texts;
    for (std::int32_t place = host.firstPlace; place <= host.lastPlace; ++place) {
        const VxHWModulePtr module = ModuleOf(host, place);
        const std::string text = module->IsEmpty() ? "-" : module->GetAttribute(host.textAttribute);
        texts += (place > host.firstPlace ? " " : "") + (text.empty() ? "+" : text);
    }
    return texts.substr(0, texts.find_last_not_of(" -") + 1);
}

ToldPlaces::ToldPlaces(VxHWStation& station)
    : moPlaceChange(
          station.RackPlaceChange.Connect([this](const VxHWRackPlacePtr& place) { mcolKeys.push_back(place->Key()); })),
      moTotalRefresh(station.TotalRefresh.Connect([this] { mbEverything = true; }))
{
}

bool ToldPlaces::Has(const VxHWRackPlacePtr& oPlace) const
{
    return mbEverything || std::find(mcolKeys.begin(), mcolKeys.end(), oPlace->Key()) != mcolKeys.end();
}

} // namespace zqbchwcx::testing
