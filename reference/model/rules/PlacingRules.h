#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"
#include "zqbchwcx/reference/model/rules/Occupancy.h"
#include "zqbchwcx/reference/model/rules/Refusal.h"

#include <cstdint>

namespace zqbchwcx::reference {

/// The rules of where a module may stand, each as a function over plain data.
///
/// Central station: place 1 takes a power supply, place 2 of rack 0 a controller (place 2 of the other racks stays
/// free), place 3 an interface module, the places from 4 on digital, analog, counter and communication modules and
/// dummies. In every rack but rack 0 these need an interface module in place 3.
///
/// Distributed station: the head, an interface module, begins at place 1; the places behind it take digital, analog,
/// counter and communication modules, dummies and power supplies (potential feeds), all of which need the head. It has
/// one rack, rack 0. A module does not reach over a hidden place.
///
/// Everywhere: a module stands wholly on active places of one present rack.

/// The place, when the station has it.
const PlaceData* FindPlace(const StationData& data, PlaceRef place);

/// Against changing anything in the station or, with a rack, in that rack.
Objection AgainstEditing(const StationData& data);
Objection AgainstRack(const StationData& data, std::int32_t rack);

/// Against the type at a place, whatever else stands in the rack: kind of station, family and sub-module types.
Objection AgainstType(const StationData& data, const ModuleType& type, PlaceRef firstPlace);

/// Against the places that a module would fill: each must be there and active.
Objection AgainstPlaces(const StationData& data, PlaceRef firstPlace, std::int32_t span);

/// Against the places that a module would fill: each must be empty.
Objection AgainstOccupied(const Occupancy& occupancy, PlaceRef firstPlace, std::int32_t span);

/// Whether a module of the type, in that rack, works only with the rack's leader: the interface module in place 3 of
/// a rack from 1 on in a central station, the head in place 1 of a distributed one.
bool NeedsLeader(std::int32_t stationKind, std::int32_t rack, const ModuleType& type);
bool HasLeader(std::int32_t stationKind, const RackData& rack, const Catalogue& catalogue);
/// Against a rack that holds modules that need its leader and lacks it; names the first such module's place.
Objection AgainstMissingLeader(const StationData& data, const Catalogue& catalogue, std::int32_t rack);

/// Whether a distributed station does not show the place, because it is not usable: its neighbours close up.
bool IsHidden(const StationData& data, PlaceRef place);
/// The place behind, skipping hidden ones.
std::int32_t NextPlace(const StationData& data, PlaceRef place);

} // namespace zqbchwcx::reference
