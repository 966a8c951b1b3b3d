#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace zqbchwcx::reference {

using ParameterValue = std::variant<bool, std::int64_t, double, std::string>;

/// A module as it is configured. What its type says (places, address sizes, parameters) stands in the catalogue.
struct ModuleData {
    std::string orderNumber; ///< names the type in the catalogue
    std::string name;        ///< given by the user; empty: the type's name is shown
    std::string comment;
    std::optional<std::int32_t> inputAddress;         ///< first byte of the inputs; none without inputs
    std::optional<std::int32_t> outputAddress;        ///< first byte of the outputs; none without outputs
    std::map<std::string, ParameterValue> parameters; ///< only those that differ from the type's defaults
    std::vector<ModuleData> subModules;               ///< in slot order

    bool operator==(const ModuleData&) const = default;
};
using ModuleDataPtr = std::shared_ptr<const ModuleData>;

/// A place of a rack. A module that spans several places is held by its first one.
struct PlaceData {
    std::int32_t usability = 1; ///< -1 not usable, 0 inactive, 1 active
    ModuleDataPtr module;       ///< the module that begins here, or null
};

struct RackData {
    std::int32_t state = 1;        ///< 0 not present, 1 present
    std::vector<PlaceData> places; ///< place N at index N - 1
};
using RackDataPtr = std::shared_ptr<const RackData>;

/// A whole station: plain data that is copied on write, rack by rack, so that a kept copy costs next to nothing.
struct StationData {
    std::string name;
    std::int32_t kind = 0;        ///< `StationKind`: 0 central, 1 and 2 distributed
    std::int32_t displayMode = 0; ///< `DisplayMode`: 0 offline, 1 and 2 online
    bool readOnly = false;
    std::vector<RackDataPtr> racks; ///< rack R at index R
};

/// Deep comparison: racks and modules by value.
bool SameStation(const StationData& a, const StationData& b);

/// The position format's limits.
inline constexpr std::int32_t MaxRacks = 100;
inline constexpr std::int32_t MaxPlaces = 499;

/// What files and the clipboard carry; an edit that goes beyond is refused, so that whatever was edited can be saved.
inline constexpr std::int32_t MaxAddress = 16'777'215;
inline constexpr std::size_t MaxTextBytes = 4096; ///< of a name, comment or parameter text, in UTF-8
inline constexpr std::size_t MaxSubModules = 64;
inline constexpr std::size_t MaxParameters = 256; ///< of one module

} // namespace zqbchwcx::reference
