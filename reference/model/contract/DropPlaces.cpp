#include "zqbchwcx/reference/model/contract/DropPlaces.h"

#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include <algorithm>

namespace zqbchwcx::reference {
namespace {

constexpr std::int32_t Possible = -1;

bool LacksLeader(const StationState& state, std::int32_t rack, const ModuleType& type)
{
    const std::int32_t kind = state.Data().kind;
    return NeedsLeader(kind, rack, type) && !HasLeader(kind, state.Rack(rack), state.ModuleTypes());
}

bool IsPossible(const StationState& state, PlaceRef place, const ModuleType& type)
{
    // The cheap rule first: most places of a large station are taken.
    return state.OccupancyOf(place.rack).IsFree(place.place) &&
           !AgainstOccupied(state.OccupancyOf(place.rack), place, type.placeCount) &&
           !AgainstPlaces(state.Data(), place, type.placeCount) && !AgainstType(state.Data(), type, place);
}

} // namespace

Array2D<std::int32_t> DropPlaces(const StationState& state, const ModuleData* module)
{
    std::int32_t longest = 0;
    for (std::int32_t rack = 0; rack < state.RackCount(); ++rack)
        longest = std::max(longest, state.OccupancyOf(rack).PlaceCount());
    Array2D<std::int32_t> possible(0, state.RackCount() - 1, 1, longest);

    const ModuleType* type = module ? state.ModuleTypes().Find(module->orderNumber) : nullptr;
    if (!type || AgainstEditing(state.Data())) return possible;
    for (std::int32_t rack = 0; rack < state.RackCount(); ++rack) {
        if (AgainstRack(state.Data(), rack) || LacksLeader(state, rack, *type)) continue;
        for (std::int32_t place = 1; place <= state.OccupancyOf(rack).PlaceCount(); ++place)
            if (IsPossible(state, {rack, place}, *type)) possible.Set(rack, place, Possible);
    }
    return possible;
}

} // namespace zqbchwcx::reference
