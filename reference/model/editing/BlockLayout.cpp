#include "zqbchwcx/reference/model/editing/BlockLayout.h"

#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include <algorithm>
#include <string>
#include <utility>

namespace zqbchwcx::reference {
namespace {

constexpr std::int32_t ToTheRight = 1;
constexpr std::int32_t ToTheLeft = -1;

/// Where the block's modules begin when its first item stands at the place, and the last place that they fill.
struct Extent {
    Placements placements;
    std::int32_t last = 0;
};

Extent Spread(const StationDraft& draft, PlaceRef first, const ModuleBlock& block)
{
    Extent extent;
    PlaceRef place = first;
    for (const ModuleDataPtr& module : block) {
        if (module) {
            extent.placements.push_back({module, place});
            place.place += SpanOf(*module, draft.ModuleTypes()) - 1;
        }
        extent.last = place.place;
        place.place = NextPlace(draft.Data(), place);
    }
    return extent;
}

/// Against the module at a place, whether or not the place is empty.
Objection AgainstModuleAt(const StationDraft& draft, const ModuleData& module, PlaceRef place)
{
    const ModuleType* type = draft.ModuleTypes().Find(module.orderNumber);
    if (!type) {
        return Refusal{Rule::UnknownType,
                       place,
                       {"The catalogue has no module \"" + module.orderNumber + "\"",
                        "Der Katalog enthält keine Baugruppe \"" + module.orderNumber + "\""}};
    }
    if (Objection objection = AgainstPlaces(draft.Data(), place, type->placeCount)) return objection;
    return AgainstType(draft.Data(), *type, place);
}

Objection AgainstPlacements(const StationDraft& draft, const Placements& placements)
{
    for (const Placement& placement : placements)
        if (Objection objection = AgainstModuleAt(draft, *placement.module, placement.firstPlace)) return objection;
    return {};
}

Refusal NoRoom(PlaceRef place)
{
    const LocalizedText where = PlaceText(place);
    return {Rule::NoRoomToShift,
            place,
            {"There is no free place beside " + where.en + " to shift modules to",
             "Neben " + where.de + " ist kein Platz frei, auf den Baugruppen rücken könnten"}};
}

/// Shifts, in one direction, the modules that stand within the block's places or in the way of those that were
/// shifted before them.
Outcome<std::vector<Shift>> MakeRoom(StationDraft& draft, std::int32_t rack, std::int32_t first, std::int32_t last,
                                     std::int32_t direction)
{
    const Occupancy& occupancy = draft.OccupancyOf(rack);
    const bool right = direction == ToTheRight;
    std::vector<Shift> shifts;
    // The border is the first place, seen in the direction, that a shifted module may fill.
    std::int32_t border = right ? last + 1 : first - 1;
    std::int32_t place = right ? first : last;
    while (place >= 1 && place <= occupancy.PlaceCount()) {
        const std::int32_t begin = occupancy.FirstPlace(place);
        const bool beyondBorder = right ? place >= border : place <= border;
        if (beyondBorder) break;
        if (begin == 0) {
            place += direction;
            continue;
        }
        const PlaceRef from{rack, begin};
        const ModuleDataPtr module = draft.ModuleAt(from);
        const std::int32_t span = SpanOf(*module, draft.ModuleTypes());
        PlaceRef to{rack, right ? border : border - span + 1};
        while (AgainstModuleAt(draft, *module, to)) {
            to.place += direction;
            if (to.place < 1 || to.place > occupancy.PlaceCount()) return NoRoom({rack, place});
        }
        shifts.push_back({module, from, to});
        border = right ? to.place + span : to.place - 1;
        place = right ? begin + span : begin - 1;
    }
    return shifts;
}

Outcome<BlockLayout> InsertAt(StationDraft& draft, PlaceRef first, const ModuleBlock& block, std::int32_t direction)
{
    Extent extent = Spread(draft, first, block);
    if (Objection objection = AgainstPlacements(draft, extent.placements)) return *std::move(objection);
    Outcome<std::vector<Shift>> shifts = MakeRoom(draft, first.rack, first.place, extent.last, direction);
    if (!shifts) return shifts.Reason();
    return BlockLayout{std::move(extent.placements), std::move(shifts.Result())};
}

/// The place at which the block must begin to end right before the gap; place 0 when there is none.
PlaceRef BeginBeforeGap(const StationDraft& draft, PlaceRef behindGap, const ModuleBlock& block)
{
    for (PlaceRef first{behindGap.rack, behindGap.place - 1}; first.place >= 1; --first.place)
        if (!IsHidden(draft.Data(), first) && Spread(draft, first, block).last < behindGap.place) return first;
    return {};
}

Outcome<BlockLayout> LayOutAtGap(StationDraft& draft, std::int32_t rack, std::int32_t gap, const ModuleBlock& block)
{
    const PlaceRef behind{rack, NextPlace(draft.Data(), {rack, gap})};
    const Occupancy& occupancy = draft.OccupancyOf(rack);
    if (gap >= 1 && !occupancy.IsFree(gap) && occupancy.FirstPlace(gap) == occupancy.FirstPlace(behind.place)) {
        const LocalizedText where = PlaceText({rack, gap});
        return Refusal{Rule::GapInsideModule,
                       {rack, gap},
                       {"The gap behind " + where.en + " lies inside a module",
                        "Die Lücke hinter " + where.de + " liegt innerhalb einer Baugruppe"}};
    }
    Outcome<BlockLayout> layout = InsertAt(draft, behind, block, ToTheRight);
    if (layout) return layout;
    if (const PlaceRef first = BeginBeforeGap(draft, behind, block); first.place != 0) {
        Outcome<BlockLayout> leftLayout = InsertAt(draft, first, block, ToTheLeft);
        if (leftLayout || behind.place > occupancy.PlaceCount()) return leftLayout;
    }
    return layout;
}

Outcome<BlockLayout> LayOutAtPlace(StationDraft& draft, PlaceRef first, const ModuleBlock& block)
{
    Extent extent = Spread(draft, first, block);
    if (Objection objection = AgainstPlacements(draft, extent.placements)) return *std::move(objection);
    for (const Placement& placement : extent.placements) {
        const std::int32_t span = SpanOf(*placement.module, draft.ModuleTypes());
        if (Objection objection = AgainstOccupied(draft.OccupancyOf(first.rack), placement.firstPlace, span))
            return *std::move(objection);
    }
    return BlockLayout{std::move(extent.placements), {}};
}

} // namespace

Outcome<BlockLayout> LayOut(StationDraft& draft, std::int32_t lPosition, const ModuleBlock& block)
{
    const PositionInfo position = G_PositionInfo(lPosition);
    const bool isGap = position.eType == vxPositionGap;
    if (!isGap && position.eType != vxPositionPlace) {
        return Refusal{Rule::NoSuchPlace,
                       {},
                       {"Modules are placed at a place or a gap", "Baugruppen kommen auf Plätze oder in Lücken"}};
    }
    if (Objection objection = AgainstRack(draft.Data(), position.lRack)) return *std::move(objection);
    if (isGap) return LayOutAtGap(draft, position.lRack, position.lNumber, block);
    return LayOutAtPlace(draft, {position.lRack, position.lNumber}, block);
}

} // namespace zqbchwcx::reference
