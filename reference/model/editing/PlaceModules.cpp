#include "zqbchwcx/reference/model/editing/PlaceModules.h"

#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/reference/model/editing/AdoptModule.h"
#include "zqbchwcx/reference/model/editing/BlockLayout.h"
#include "zqbchwcx/reference/model/rules/ModuleRules.h"
#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include <algorithm>
#include <set>
#include <string>

namespace zqbchwcx::reference {
namespace {

ModuleBlock WithoutTrailingEmpties(ModuleBlock block)
{
    while (!block.empty() && !block.back()) block.pop_back();
    return block;
}

/// The first places of the modules that fill the places, each once and in order.
std::set<PlaceRef> FirstPlaces(StationDraft& draft, const std::vector<PlaceRef>& places)
{
    std::set<PlaceRef> firstPlaces;
    for (const PlaceRef& place : places)
        if (const PlaceRef first = draft.FirstPlaceOf(place); first.place != 0) firstPlaces.insert(first);
    return firstPlaces;
}

/// A move must not lose a module: the block holds as many of each type as are taken away.
Objection AgainstSources(const std::vector<ModuleDataPtr>& taken, const ModuleBlock& block)
{
    std::multiset<std::string> takenTypes;
    std::multiset<std::string> blockTypes;
    for (const ModuleDataPtr& module : taken) takenTypes.insert(module->orderNumber);
    for (const ModuleDataPtr& module : block)
        if (module) blockTypes.insert(module->orderNumber);
    if (takenTypes == blockTypes) return {};
    return Refusal{Rule::SourcesDiffer,
                   {},
                   {"The modules to be moved are not those in the source places",
                    "Die zu verschiebenden Baugruppen sind nicht die der Quellsteckplätze"}};
}

/// Against a rack that the edit leaves without its interface module or head although modules need it.
Objection AgainstLeaders(const StationData& before, StationDraft& draft, const Placements& placed)
{
    for (const auto& [changedRack, data] : draft.ChangedRacks()) {
        const std::int32_t rack = changedRack;
        Objection missing = AgainstMissingLeader(draft.Data(), draft.ModuleTypes(), rack);
        if (!missing) continue;
        const bool addsToIt = std::any_of(placed.begin(), placed.end(), [&](const Placement& placement) {
            const ModuleType* type = draft.ModuleTypes().Find(placement.module->orderNumber);
            return placement.firstPlace.rack == rack && NeedsLeader(before.kind, rack, *type);
        });
        if (addsToIt || !AgainstMissingLeader(before, draft.ModuleTypes(), rack)) return missing;
    }
    return {};
}

Objection PutAll(StationDraft& draft, const Placements& placements)
{
    for (const Placement& placement : placements) {
        Outcome<ModuleDataPtr> adopted = AdoptModule(draft, placement.module, placement.firstPlace);
        if (!adopted) return adopted.Reason();
        draft.Put(placement.firstPlace, adopted.Result());
    }
    return {};
}

std::vector<PlaceRef> PlacesOf(const Placements& placements, const Catalogue& catalogue)
{
    std::vector<PlaceRef> places;
    for (const Placement& placement : placements)
        for (std::int32_t offset = 0; offset < SpanOf(*placement.module, catalogue); ++offset)
            places.push_back({placement.firstPlace.rack, placement.firstPlace.place + offset});
    return places;
}

Outcome<Edit> Land(const EditContext& context, StationDraft& draft, std::int32_t lPosition, const ModuleBlock& block)
{
    Outcome<BlockLayout> layout = LayOut(draft, lPosition, block);
    if (!layout) return layout.Reason();
    for (const Shift& shift : layout.Result().shifts) draft.Take(shift.from);
    for (const Shift& shift : layout.Result().shifts) draft.Put(shift.to, shift.module);
    const Placements& placed = layout.Result().placed;
    if (Objection objection = PutAll(draft, placed)) return *std::move(objection);
    if (Objection objection = AgainstLeaders(context.data, draft, placed)) return *std::move(objection);
    return Edit{draft.Data(), PlacesOf(placed, context.catalogue)};
}

Objection AgainstBlock(const EditContext& context, const ModuleBlock& block)
{
    if (Objection objection = AgainstEditing(context.data)) return objection;
    for (const ModuleDataPtr& module : block) {
        if (!module || context.catalogue.Find(module->orderNumber)) continue;
        return AgainstModule(*module, context.catalogue, {}).front();
    }
    if (block.empty()) {
        return Refusal{
            Rule::NothingToPlace, {}, {"There is no module to be placed", "Es gibt keine Baugruppe zum Stecken"}};
    }
    return {};
}

} // namespace

Outcome<Edit> PlaceBlock(const EditContext& context, std::int32_t lPosition, const ModuleBlock& block)
{
    const ModuleBlock modules = WithoutTrailingEmpties(block);
    if (Objection objection = AgainstBlock(context, modules)) return *std::move(objection);
    StationDraft draft(context);
    return Land(context, draft, lPosition, modules);
}

Outcome<Edit> MoveBlock(const EditContext& context, std::int32_t lPosition, const ModuleBlock& block,
                        const std::vector<PlaceRef>& sources)
{
    const ModuleBlock modules = WithoutTrailingEmpties(block);
    if (Objection objection = AgainstBlock(context, modules)) return *std::move(objection);
    StationDraft draft(context);
    std::vector<ModuleDataPtr> taken;
    for (const PlaceRef& source : FirstPlaces(draft, sources)) taken.push_back(draft.Take(source));
    if (Objection objection = AgainstSources(taken, modules)) return *std::move(objection);
    return Land(context, draft, lPosition, modules);
}

Outcome<Edit> DeleteAt(const EditContext& context, const std::vector<PlaceRef>& places)
{
    if (Objection objection = AgainstEditing(context.data)) return *std::move(objection);
    StationDraft draft(context);
    for (const PlaceRef& firstPlace : FirstPlaces(draft, places)) draft.Take(firstPlace);
    if (Objection objection = AgainstLeaders(context.data, draft, {})) return *std::move(objection);
    return Edit{draft.Data(), places};
}

} // namespace zqbchwcx::reference
