#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include "zqbchwcx/foundation/model/Enumerations.h"

#include <string>

namespace zqbchwcx::reference {
namespace {

constexpr std::int32_t PowerSupplyPlace = 1;
constexpr std::int32_t ControllerPlace = 2;
constexpr std::int32_t InterfacePlace = 3;
constexpr std::int32_t FirstInputOutputPlace = 4;
constexpr std::int32_t HeadPlace = 1;

bool IsCentral(std::int32_t stationKind)
{
    return stationKind == vxStationKindCentral;
}

std::int32_t LeaderPlace(std::int32_t stationKind)
{
    return IsCentral(stationKind) ? InterfacePlace : HeadPlace;
}

bool IsInputOutput(ModuleFamily family)
{
    switch (family) {
    case ModuleFamily::Digital:
    case ModuleFamily::Analog:
    case ModuleFamily::Counter:
    case ModuleFamily::Communication:
    case ModuleFamily::Dummy:
        return true;
    case ModuleFamily::PowerSupply:
    case ModuleFamily::Controller:
    case ModuleFamily::Interface:
        return false;
    }
    return false;
}

/// What the place takes, for the reason of a refusal.
LocalizedText TakenBy(std::int32_t stationKind, PlaceRef place)
{
    if (!IsCentral(stationKind)) {
        if (place.place == HeadPlace) return {"takes only the station's head", "nimmt nur die Kopfbaugruppe auf"};
        return {"takes signal, communication and feed modules",
                "nimmt Signal-, Kommunikations- und Einspeisemodule auf"};
    }
    switch (place.place) {
    case PowerSupplyPlace:
        return {"takes only a power supply", "nimmt nur eine Stromversorgung auf"};
    case ControllerPlace:
        if (place.rack == 0) return {"takes only a controller", "nimmt nur eine Zentralbaugruppe auf"};
        return {"stays free", "bleibt frei"};
    case InterfacePlace:
        return {"takes only an interface module", "nimmt nur eine Anschaltung auf"};
    default:
        return {"takes signal and communication modules", "nimmt Signal- und Kommunikationsbaugruppen auf"};
    }
}

bool FamilyFitsCentral(ModuleFamily family, PlaceRef place)
{
    switch (place.place) {
    case PowerSupplyPlace:
        return family == ModuleFamily::PowerSupply;
    case ControllerPlace:
        return family == ModuleFamily::Controller && place.rack == 0;
    case InterfacePlace:
        return family == ModuleFamily::Interface;
    default:
        return place.place >= FirstInputOutputPlace && IsInputOutput(family);
    }
}

bool FamilyFitsDistributed(ModuleFamily family, PlaceRef firstPlace)
{
    if (firstPlace.place == HeadPlace) return family == ModuleFamily::Interface;
    return IsInputOutput(family) || family == ModuleFamily::PowerSupply;
}

/// What a station of the kind is.
LocalizedText KindText(std::int32_t stationKind)
{
    switch (stationKind) {
    case vxStationKindCentral:
        return {"central", "zentral"};
    case vxStationKindDistributed1:
        return {"distributed on a rail", "dezentral auf einer Schiene"};
    default:
        return {"distributed with self-contained modules", "dezentral aus eigenständigen Modulen"};
    }
}

/// The stations that take the type; it does not fit all of them.
LocalizedText StationsOf(const ModuleType& type)
{
    if (!type.fitsDistributed) return {"central stations", "zentrale Stationen"};
    if (type.distributedKind == vxStationKindDistributed1)
        return {"distributed stations on a rail", "dezentrale Stationen auf einer Schiene"};
    if (type.distributedKind == vxStationKindDistributed2)
        return {"distributed stations with self-contained modules", "dezentrale Stationen aus eigenständigen Modulen"};
    return {"distributed stations", "dezentrale Stationen"};
}

/// The first place that does not take the family, or place 0.
PlaceRef UnfitPlace(std::int32_t stationKind, const ModuleType& type, PlaceRef firstPlace)
{
    if (!IsCentral(stationKind)) return FamilyFitsDistributed(type.family, firstPlace) ? PlaceRef{} : firstPlace;
    for (std::int32_t offset = 0; offset < type.placeCount; ++offset) {
        const PlaceRef place{firstPlace.rack, firstPlace.place + offset};
        if (!FamilyFitsCentral(type.family, place)) return place;
    }
    return {};
}

} // namespace

const PlaceData* FindPlace(const StationData& data, PlaceRef place)
{
    if (place.rack < 0 || static_cast<std::size_t>(place.rack) >= data.racks.size()) return nullptr;
    const auto& places = data.racks[static_cast<std::size_t>(place.rack)]->places;
    if (place.place < 1 || static_cast<std::size_t>(place.place) > places.size()) return nullptr;
    return &places[static_cast<std::size_t>(place.place - 1)];
}

Objection AgainstEditing(const StationData& data)
{
    if (data.readOnly)
        return Refusal{Rule::ReadOnly, {}, {"The station is read-only", "Die Station ist schreibgeschützt"}};
    if (data.displayMode == vxDisplayModeOffline) return {};
    return Refusal{Rule::Online,
                   {},
                   {"The station is online: it can be looked at, not changed",
                    "Die Station ist online: sie kann betrachtet, aber nicht geändert werden"}};
}

Objection AgainstRack(const StationData& data, std::int32_t rack)
{
    const std::string number = std::to_string(rack);
    if (rack < 0 || static_cast<std::size_t>(rack) >= data.racks.size()) {
        return Refusal{Rule::NoSuchPlace, {rack, 0}, {"There is no rack " + number, "Es gibt keinen Träger " + number}};
    }
    if (rack > 0 && !IsCentral(data.kind)) {
        return Refusal{
            Rule::StationKind,
            {rack, 0},
            {"A distributed station has no rack but rack 0", "Eine dezentrale Station hat nur den Träger 0"}};
    }
    if (data.racks[static_cast<std::size_t>(rack)]->state != vxRackPresent) {
        return Refusal{Rule::RackNotPresent,
                       {rack, 0},
                       {"Rack " + number + " is not present", "Träger " + number + " ist nicht vorhanden"}};
    }
    return {};
}

Objection AgainstType(const StationData& data, const ModuleType& type, PlaceRef firstPlace)
{
    if (type.isSubModule) {
        return Refusal{Rule::SubModuleAlone,
                       firstPlace,
                       {type.orderNumber + " exists only inside another module",
                        type.orderNumber + " gibt es nur innerhalb einer anderen Baugruppe"}};
    }
    if (!type.FitsStation(data.kind)) {
        const LocalizedText made = StationsOf(type);
        const LocalizedText here = KindText(data.kind);
        return Refusal{Rule::StationKind,
                       firstPlace,
                       {type.orderNumber + " is made for " + made.en + ", and this one is " + here.en,
                        type.orderNumber + " ist für " + made.de + " bestimmt, und diese ist " + here.de}};
    }
    if (const PlaceRef unfit = UnfitPlace(data.kind, type, firstPlace); unfit.place != 0) {
        const LocalizedText where = PlaceText(unfit);
        const LocalizedText what = TakenBy(data.kind, unfit);
        return Refusal{Rule::WrongPlace,
                       firstPlace,
                       {type.orderNumber + " does not fit: " + where.en + " " + what.en,
                        type.orderNumber + " passt nicht: " + where.de + " " + what.de}};
    }
    return {};
}

Objection AgainstPlaces(const StationData& data, PlaceRef firstPlace, std::int32_t span)
{
    for (std::int32_t offset = 0; offset < span; ++offset) {
        const PlaceRef place{firstPlace.rack, firstPlace.place + offset};
        const LocalizedText where = PlaceText(place);
        const PlaceData* found = FindPlace(data, place);
        if (!found) {
            const Rule rule = offset == 0 ? Rule::NoSuchPlace : Rule::SpanTooLong;
            return Refusal{rule, firstPlace, {"There is no " + where.en, "Es gibt keinen " + where.de}};
        }
        if (found->usability == vxPlaceNotUsable) {
            return Refusal{Rule::PlaceNotUsable,
                           firstPlace,
                           {"The " + where.en + " is not usable", where.de + " ist nicht nutzbar"}};
        }
        if (found->usability != vxPlaceActive) {
            return Refusal{
                Rule::PlaceInactive, firstPlace, {"The " + where.en + " is inactive", where.de + " ist nicht aktiv"}};
        }
    }
    return {};
}

Objection AgainstOccupied(const Occupancy& occupancy, PlaceRef firstPlace, std::int32_t span)
{
    for (std::int32_t offset = 0; offset < span; ++offset) {
        const PlaceRef place{firstPlace.rack, firstPlace.place + offset};
        if (occupancy.IsFree(place.place)) continue;
        const LocalizedText where = PlaceText(place);
        return Refusal{Rule::PlaceOccupied, firstPlace, {"The " + where.en + " is occupied", where.de + " ist belegt"}};
    }
    return {};
}

bool NeedsLeader(std::int32_t stationKind, std::int32_t rack, const ModuleType& type)
{
    if (IsCentral(stationKind)) return rack > 0 && IsInputOutput(type.family);
    return type.family != ModuleFamily::Interface;
}

bool HasLeader(std::int32_t stationKind, const RackData& rack, const Catalogue& catalogue)
{
    const auto index = static_cast<std::size_t>(LeaderPlace(stationKind) - 1);
    if (index >= rack.places.size() || !rack.places[index].module) return false;
    const ModuleType* type = catalogue.Find(rack.places[index].module->orderNumber);
    return type && type->family == ModuleFamily::Interface;
}

Objection AgainstMissingLeader(const StationData& data, const Catalogue& catalogue, std::int32_t rack)
{
    const RackData& places = *data.racks[static_cast<std::size_t>(rack)];
    if (HasLeader(data.kind, places, catalogue)) return {};
    for (std::size_t i = 0; i < places.places.size(); ++i) {
        const ModuleDataPtr& module = places.places[i].module;
        const ModuleType* type = module ? catalogue.Find(module->orderNumber) : nullptr;
        if (!type || !NeedsLeader(data.kind, rack, *type)) continue;
        const PlaceRef place{rack, static_cast<std::int32_t>(i) + 1};
        const LocalizedText leader = PlaceText({rack, LeaderPlace(data.kind)});
        const bool central = IsCentral(data.kind);
        return Refusal{Rule::LeaderMissing,
                       place,
                       {type->orderNumber + " needs " + (central ? "an interface module" : "the station's head") +
                            " in " + leader.en,
                        type->orderNumber + " braucht " + (central ? "eine Anschaltung" : "die Kopfbaugruppe") +
                            " auf " + leader.de}};
    }
    return {};
}

bool IsHidden(const StationData& data, PlaceRef place)
{
    const PlaceData* found = IsCentral(data.kind) ? nullptr : FindPlace(data, place);
    return found && found->usability == vxPlaceNotUsable;
}

std::int32_t NextPlace(const StationData& data, PlaceRef place)
{
    std::int32_t next = place.place + 1;
    while (IsHidden(data, {place.rack, next})) ++next;
    return next;
}

} // namespace zqbchwcx::reference
