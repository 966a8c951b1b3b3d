#include "zqbchwcx/reference/model/contract/StationState.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include <algorithm>
#include <string>
#include <utility>

namespace zqbchwcx::reference {
namespace {

bool SameShape(const StationData& a, const StationData& b)
{
    return a.kind == b.kind && a.displayMode == b.displayMode && a.readOnly == b.readOnly &&
           std::equal(a.racks.begin(), a.racks.end(), b.racks.begin(), b.racks.end(),
                      [](const RackDataPtr& left, const RackDataPtr& right) {
                          return left->places.size() == right->places.size();
                      });
}

} // namespace

StationState::StationState(ModelContextPtr oContext, StationData data)
    : moContext(std::move(oContext)), moData(std::move(data))
{
    ReadAll();
}

const RackData& StationState::Rack(std::int32_t lRack) const
{
    if (lRack < 0 || lRack >= RackCount())
        throw VxError(vxErrorSubscript, "The station has no rack " + std::to_string(lRack));
    return *moData.racks[static_cast<std::size_t>(lRack)];
}

const PlaceData& StationState::Place(PlaceRef place) const
{
    const RackData& rack = Rack(place.rack);
    if (place.place < 1 || static_cast<std::size_t>(place.place) > rack.places.size())
        throw VxError(vxErrorSubscript, "The station has no " + PlaceText(place).en);
    return rack.places[static_cast<std::size_t>(place.place - 1)];
}

const Occupancy& StationState::OccupancyOf(std::int32_t lRack) const
{
    static_cast<void>(Rack(lRack));
    return mcolOccupancies[static_cast<std::size_t>(lRack)];
}

StationChange StationState::Replace(StationData data)
{
    StationChange change;
    const StationData before = std::exchange(moData, std::move(data));
    if (!SameShape(before, moData)) {
        change.everything = true;
        ReadAll();
        return change;
    }
    for (std::size_t rack = 0; rack < moData.racks.size(); ++rack)
        if (moData.racks[rack] != before.racks[rack]) CompareRack(rack, before.racks[rack], change);
    return change;
}

void StationState::ReadAll()
{
    mcolOccupancies.clear();
    for (const RackDataPtr& rack : moData.racks) mcolOccupancies.emplace_back(*rack, ModuleTypes());
    moAddresses = AddressesOf(moData, ModuleTypes());
}

void StationState::CompareRack(std::size_t rack, const RackDataPtr& before, StationChange& change)
{
    const RackData& after = *moData.racks[rack];
    const auto number = static_cast<std::int32_t>(rack);
    const Occupancy occupancyBefore = std::exchange(mcolOccupancies[rack], Occupancy(after, ModuleTypes()));
    const Occupancy& occupancy = mcolOccupancies[rack];
    if (after.state != before->state) change.racks.push_back(number);

    for (std::int32_t place = 1; place <= occupancy.PlaceCount(); ++place) {
        const auto index = static_cast<std::size_t>(place - 1);
        const PlaceData& placeBefore = before->places[index];
        const PlaceData& placeAfter = after.places[index];
        if (placeBefore.module != placeAfter.module) {
            if (placeBefore.module) moAddresses.Release(*placeBefore.module, ModuleTypes());
            if (placeAfter.module) moAddresses.Claim(*placeAfter.module, ModuleTypes());
        }
        const std::int32_t firstBefore = occupancyBefore.FirstPlace(place);
        const std::int32_t firstAfter = occupancy.FirstPlace(place);
        const bool sameModule = firstBefore == firstAfter &&
                                (firstAfter == 0 || before->places[static_cast<std::size_t>(firstAfter - 1)].module ==
                                                        after.places[static_cast<std::size_t>(firstAfter - 1)].module);
        if (!sameModule || placeBefore.usability != placeAfter.usability) change.places.push_back({number, place});
    }
}

} // namespace zqbchwcx::reference
