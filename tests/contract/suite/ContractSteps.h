#pragma once

#include "ModelContract.h"

#include "foundation/Event.h"
#include "foundation/PlacePosition.h"
#include "foundation/VxError.h"
#include "foundation/model/VxHWModule.h"
#include "foundation/model/VxHWModules.h"
#include "foundation/model/VxHWRack.h"
#include "foundation/model/VxHWRackPlace.h"
#include "foundation/model/VxHWRackPlaces.h"
#include "foundation/model/VxHWRacks.h"

#include <string>
#include <vector>

namespace zqbchwcx::testing {

/// The steps that contract tests are made of.

/// Every place of the station, rack by rack.
std::vector<VxHWRackPlacePtr> AllPlaces(const VxHWStation& station);
VxHWRackPlacePtr PlaceOf(const ContractHost& host, std::int32_t lPlace);
VxHWModulePtr ModuleOf(const ContractHost& host, std::int32_t lPlace);
VxHWRackPlacesPtr PlacesOf(const ContractHost& host, std::initializer_list<std::int32_t> places);
/// The modules in the places, as a selection of them would give.
VxHWModulesPtr ModulesOf(const ContractHost& host, std::initializer_list<std::int32_t> places);
VxHWModulesPtr Collection(const ContractHost& host, std::initializer_list<VxHWModulePtr> modules);

std::int32_t PlacePosition(const ContractHost& host, std::int32_t lPlace);
/// The gap in front of the place.
std::int32_t GapBefore(const ContractHost& host, std::int32_t lPlace);

/// Places a module as a host's insert command does; the places that received it.
VxHWRackPlacesPtr Insert(const ContractHost& host, const VxHWModulePtr& oModule, std::int32_t lPosition);
/// Inserts a single module in the run's place of that index, from 0, and gives it the text.
void InsertNamed(const ContractHost& host, std::int32_t lPlace, const std::string& text);

/// Everything that a view could show of the station, as text.
std::string Content(const VxHWStation& station);
/// The texts of the run's modules from left to right: "a b - c" ("-": empty, "+": no text).
std::string Texts(const ContractHost& host);

/// The keys of the places that the station told, in order.
class ToldPlaces {
public:
    explicit ToldPlaces(VxHWStation& station);

    bool Has(const VxHWRackPlacePtr& oPlace) const;
    std::size_t Count() const { return mcolKeys.size(); }
    void Forget() { mcolKeys.clear(); }

private:
    std::vector<std::string> mcolKeys;
    bool mbEverything = false;
    EventConnection moPlaceChange;
    EventConnection moTotalRefresh;
};

} // namespace zqbchwcx::testing
