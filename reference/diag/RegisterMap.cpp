#include "zqbchwcx/reference/diag/RegisterMap.h"

#include "zqbchwcx/reference/files/FileStamp.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <algorithm>

namespace zqbchwcx::reference {
namespace {

constexpr std::size_t MostRegisters = 65536;
constexpr std::size_t FingerprintRegisters = 4;
constexpr unsigned RegisterBits = 16;

std::string StructureText(const StationData& station)
{
    std::string text = std::to_string(station.kind);
    for (const RackDataPtr& rack : station.racks) {
        text.append(rack->state == 0 ? "\nabsent " : "\nrack ").append(std::to_string(rack->places.size()));
        for (std::size_t place = 0; place < rack->places.size(); ++place) {
            const ModuleDataPtr& module = rack->places[place].module;
            if (!module) continue;
            text.append("\n").append(std::to_string(place + 1)).append(" ").append(module->orderNumber);
            for (const ModuleData& subModule : module->subModules) text.append("\n+ ").append(subModule.orderNumber);
        }
    }
    return text;
}

std::vector<PlantItem> ItemsOf(const StationData& station, bool withEmptyPlaces)
{
    std::vector<PlantItem> items;
    for (std::size_t rack = 0; rack < station.racks.size(); ++rack) {
        if (station.racks[rack]->state == 0) continue;
        const auto& places = station.racks[rack]->places;
        for (std::size_t place = 0; place < places.size(); ++place) {
            const ModuleDataPtr& module = places[place].module;
            if (!module && !withEmptyPlaces) continue;
            const PlaceRef ref{static_cast<std::int32_t>(rack), static_cast<std::int32_t>(place + 1)};
            const std::size_t subModules = module ? module->subModules.size() : 0;
            for (std::size_t slot = 0; slot <= subModules; ++slot)
                items.push_back({ref, static_cast<std::int32_t>(slot)});
        }
    }
    return items;
}

} // namespace

std::string PlantItemText(const PlantItem& item)
{
    std::string text = std::to_string(item.place.rack) + "/" + std::to_string(item.place.place);
    return item.subModule == 0 ? text : text + "." + std::to_string(item.subModule);
}

std::vector<PlantItem> ModuleItems(const StationData& station)
{
    return ItemsOf(station, false);
}

RegisterMap::RegisterMap(const StationData& station)
    : mlFingerprint(ContentHash(StructureText(station))), mcolItems(ItemsOf(station, true))
{
    if (RegisterCount() <= MostRegisters) return;
    const std::string count = std::to_string(RegisterCount());
    throw FileError(station.name, "", "the station needs " + count + " registers; there are 65536",
                    "die Station braucht " + count + " Register; es gibt 65536");
}

std::optional<std::size_t> RegisterMap::RegisterOf(const PlantItem& item) const
{
    const auto found = std::lower_bound(mcolItems.begin(), mcolItems.end(), item);
    if (found == mcolItems.end() || *found != item) return {};
    return MapHead::FirstItem + static_cast<std::size_t>(found - mcolItems.begin());
}

std::vector<std::uint16_t> RegisterMap::FreshRegisters() const
{
    std::vector<std::uint16_t> registers(RegisterCount(), 0);
    registers[MapHead::Magic] = MapHead::MagicValue;
    registers[MapHead::Version] = MapHead::VersionValue;
    for (std::size_t i = 0; i < FingerprintRegisters; ++i)
        registers[MapHead::Fingerprint + i] =
            static_cast<std::uint16_t>(mlFingerprint >> (RegisterBits * (FingerprintRegisters - 1 - i)));
    return registers;
}

std::optional<MapObjection> RegisterMap::Against(std::span<const std::uint16_t> head) const
{
    if (head[MapHead::Magic] != MapHead::MagicValue)
        return MapObjection{false,
                            {"register 0 holds " + std::to_string(head[MapHead::Magic]) + " instead of " +
                                 std::to_string(MapHead::MagicValue) + ": there is no register map",
                             "Register 0 enthält " + std::to_string(head[MapHead::Magic]) + " statt " +
                                 std::to_string(MapHead::MagicValue) + ": dort ist keine Registerbelegung"}};
    if (head[MapHead::Version] != MapHead::VersionValue)
        return MapObjection{false,
                            {"the register map has version " + std::to_string(head[MapHead::Version]) +
                                 "; this program reads version " + std::to_string(MapHead::VersionValue),
                             "die Registerbelegung hat die Version " + std::to_string(head[MapHead::Version]) +
                                 "; dieses Programm liest die Version " + std::to_string(MapHead::VersionValue)}};
    const std::vector<std::uint16_t> own = FreshRegisters();
    if (!std::equal(head.begin() + MapHead::Fingerprint, head.begin() + MapHead::ChangeCounter,
                    own.begin() + MapHead::Fingerprint))
        return MapObjection{true,
                            {"the plant belongs to another station: its fingerprint differs",
                             "die Anlage gehört zu einer anderen Station: ihr Fingerabdruck ist ein anderer"}};
    return {};
}

} // namespace zqbchwcx::reference
