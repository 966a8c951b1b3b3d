#pragma once

#include "zqbchwcx/reference/catalogue/LocalizedText.h"
#include "zqbchwcx/reference/model/PlaceRef.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// A place of a plant, or with its slot from 1 a sub-module of the module that begins there (else 0).
struct PlantItem {
    PlaceRef place;
    std::int32_t subModule = 0;

    auto operator<=>(const PlantItem&) const = default;
};

/// "0/4", "0/4.1".
std::string PlantItemText(const PlantItem& item);

/// The modules and sub-modules of the racks that are present, in the order of racks, places and slots.
std::vector<PlantItem> ModuleItems(const StationData& station);

/// The fixed head of a register map; numbers of holding registers from 0.
struct MapHead {
    static constexpr std::size_t Magic = 0;
    static constexpr std::size_t Version = 1;
    static constexpr std::size_t Fingerprint = 2; ///< four registers, the highest 16 bits first
    static constexpr std::size_t ChangeCounter = 6;
    static constexpr std::size_t ControllerState = 7; ///< a number of `OperatingState`
    static constexpr std::size_t ComponentCount = 8;
    static constexpr std::size_t FirstComponent = 9; ///< each: kind, major, minor, patch
    static constexpr std::size_t ComponentSize = 4;
    static constexpr std::size_t MostComponents = 8;
    static constexpr std::size_t FirstItem = 48; ///< those between the components and here are kept free

    static constexpr std::uint16_t MagicValue = 0x5148;
    static constexpr std::uint16_t VersionValue = 1;
};

/// Why the registers of a plant are not taken.
struct MapObjection {
    bool isOtherStation = false; ///< it has such a map, but for another station
    LocalizedText reason;
};

/// Which holding register of a plant says what. Made from the station: one state word for each place of each rack that
/// is present, and behind it one for each sub-module of the module there.
class RegisterMap {
public:
    /// Throws FileError, under the station's name, for a station with more words than there are registers.
    explicit RegisterMap(const StationData& station);

    /// Tells stations apart by their racks, places and order numbers. Names, comments, addresses and parameters do not
    /// count.
    std::uint64_t Fingerprint() const { return mlFingerprint; }
    std::size_t RegisterCount() const { return MapHead::FirstItem + mcolItems.size(); }
    /// In the order of their registers, which is that of racks, places and slots.
    const std::vector<PlantItem>& Items() const { return mcolItems; }
    /// Nothing for what the station does not have.
    std::optional<std::size_t> RegisterOf(const PlantItem& item) const;

    /// The registers of a plant in which nothing has happened yet: the head, and zeros.
    std::vector<std::uint16_t> FreshRegisters() const;
    /// Nothing when registers that begin like these, from 0, are of this station. Needs all of the head.
    std::optional<MapObjection> Against(std::span<const std::uint16_t> head) const;

private:
    std::uint64_t mlFingerprint;
    std::vector<PlantItem> mcolItems;
};

} // namespace zqbchwcx::reference
