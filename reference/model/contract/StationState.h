#pragma once

#include "zqbchwcx/reference/model/PlaceRef.h"
#include "zqbchwcx/reference/model/StationData.h"
#include "zqbchwcx/reference/model/contract/ModelContext.h"
#include "zqbchwcx/reference/model/editing/StationDraft.h"
#include "zqbchwcx/reference/model/rules/AddressMap.h"
#include "zqbchwcx/reference/model/rules/Occupancy.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace zqbchwcx::reference {

/// What differs between two states of a station.
struct StationChange {
    bool everything = false; ///< kind, mode, lock or the shape of the racks: nothing of the old picture holds
    std::vector<std::int32_t> racks;
    std::vector<PlaceRef> places;
};

/// The current state of a station, with what is derived from it kept up to date: which module fills which place, and
/// which addresses are in use.
class StationState {
public:
    StationState(ModelContextPtr oContext, StationData data);

    const StationData& Data() const { return moData; }
    const ModelContextPtr& Context() const { return moContext; }
    const Catalogue& ModuleTypes() const { return *moContext->catalogue; }
    EditContext EditFrom() const { return {moData, ModuleTypes(), moAddresses}; }

    std::int32_t RackCount() const { return static_cast<std::int32_t>(moData.racks.size()); }
    /// Throw VxError when there is no such rack or place.
    const RackData& Rack(std::int32_t lRack) const;
    const PlaceData& Place(PlaceRef place) const;
    const Occupancy& OccupancyOf(std::int32_t lRack) const;

    /// Takes over another state. Costs as much as the racks that differ.
    StationChange Replace(StationData data);

private:
    void ReadAll();
    void CompareRack(std::size_t rack, const RackDataPtr& before, StationChange& change);

    ModelContextPtr moContext;
    StationData moData;
    std::vector<Occupancy> mcolOccupancies;
    StationAddresses moAddresses;
};
using StationStatePtr = std::shared_ptr<StationState>;

} // namespace zqbchwcx::reference
