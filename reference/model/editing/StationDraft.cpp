#include "zqbchwcx/reference/model/editing/StationDraft.h"

#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include <utility>

namespace zqbchwcx::reference {

StationDraft::StationDraft(const EditContext& context)
    : moData(context.data), mrCatalogue(context.catalogue), moAddresses(context.addresses)
{
}

const Occupancy& StationDraft::OccupancyOf(std::int32_t rack)
{
    auto found = mcolOccupancies.find(rack);
    if (found == mcolOccupancies.end()) {
        const RackData& data = *moData.racks[static_cast<std::size_t>(rack)];
        found = mcolOccupancies.emplace(rack, Occupancy(data, mrCatalogue)).first;
    }
    return found->second;
}

PlaceRef StationDraft::FirstPlaceOf(PlaceRef place)
{
    if (!FindPlace(moData, place)) return {};
    const std::int32_t firstPlace = OccupancyOf(place.rack).FirstPlace(place.place);
    return firstPlace == 0 ? PlaceRef{} : PlaceRef{place.rack, firstPlace};
}

ModuleDataPtr StationDraft::ModuleAt(PlaceRef firstPlace) const
{
    const PlaceData* place = FindPlace(moData, firstPlace);
    return place ? place->module : nullptr;
}

ModuleDataPtr StationDraft::Take(PlaceRef firstPlace)
{
    OccupancyOf(firstPlace.rack);
    auto& place = Writable(firstPlace.rack).places[static_cast<std::size_t>(firstPlace.place - 1)];
    ModuleDataPtr module = std::exchange(place.module, nullptr);
    if (!module) return nullptr;
    moAddresses.Release(*module, mrCatalogue);
    mcolOccupancies[firstPlace.rack].Free(firstPlace.place);
    return module;
}

void StationDraft::Put(PlaceRef firstPlace, ModuleDataPtr module)
{
    OccupancyOf(firstPlace.rack);
    moAddresses.Claim(*module, mrCatalogue);
    mcolOccupancies[firstPlace.rack].Fill(firstPlace.place, SpanOf(*module, mrCatalogue));
    Writable(firstPlace.rack).places[static_cast<std::size_t>(firstPlace.place - 1)].module = std::move(module);
}

RackData& StationDraft::Writable(std::int32_t rack)
{
    std::shared_ptr<RackData>& changed = mcolChangedRacks[rack];
    if (!changed) {
        RackDataPtr& shared = moData.racks[static_cast<std::size_t>(rack)];
        changed = std::make_shared<RackData>(*shared);
        shared = changed;
    }
    return *changed;
}

} // namespace zqbchwcx::reference
