#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"
#include "zqbchwcx/reference/model/rules/AddressMap.h"
#include "zqbchwcx/reference/model/rules/Occupancy.h"
#include "zqbchwcx/reference/model/rules/Refusal.h"

#include <map>
#include <memory>

namespace zqbchwcx::reference {

/// What edits start from. The addresses are those of the data.
struct EditContext {
    const StationData& data;
    const Catalogue& catalogue;
    const StationAddresses& addresses;
};

/// A station that is being edited: it shares with the original what it does not change, and is thrown away when a
/// rule stands against the edit.
class StationDraft {
public:
    explicit StationDraft(const EditContext& context);

    const StationData& Data() const { return moData; }
    const Catalogue& ModuleTypes() const { return mrCatalogue; }
    StationAddresses& Addresses() { return moAddresses; }
    const Occupancy& OccupancyOf(std::int32_t rack);

    /// The first place of the module that fills the place; place 0 when it is empty or not there.
    PlaceRef FirstPlaceOf(PlaceRef place);
    /// Null when no module begins there.
    ModuleDataPtr ModuleAt(PlaceRef firstPlace) const;

    /// Takes the module that begins at the place out, with its addresses.
    ModuleDataPtr Take(PlaceRef firstPlace);
    /// Puts a module there and claims its addresses. The rules are the caller's.
    void Put(PlaceRef firstPlace, ModuleDataPtr module);

    /// The racks that were changed, by number.
    const std::map<std::int32_t, std::shared_ptr<RackData>>& ChangedRacks() const { return mcolChangedRacks; }

private:
    RackData& Writable(std::int32_t rack);

    StationData moData;
    const Catalogue& mrCatalogue;
    StationAddresses moAddresses;
    std::map<std::int32_t, Occupancy> mcolOccupancies;
    std::map<std::int32_t, std::shared_ptr<RackData>> mcolChangedRacks;
};

} // namespace zqbchwcx::reference
