#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/PlaceRef.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace zqbchwcx::reference {

enum class AddressArea { Input, Output };

/// How many byte addresses each area of the station has: 1024, or 16 for each of its places (rounded up to whole
/// 1024s) where that is more, so that the largest station can be filled.
std::int32_t AddressAreaSize(const StationData& data);

/// Which byte addresses of one area are in use. A copy shares its pages with the original until one of them changes.
class AddressMap {
public:
    explicit AddressMap(std::int32_t areaSize = 0);

    std::int32_t AreaSize() const { return mlAreaSize; }

    /// Bytes outside the area are ignored; a byte may be claimed several times and is free after as many releases.
    void Claim(std::int32_t address, std::int32_t bytes) { Count(address, bytes, 1); }
    void Release(std::int32_t address, std::int32_t bytes) { Count(address, bytes, -1); }

    /// Whether the whole range lies in the area and nobody uses any of it.
    bool IsFree(std::int32_t address, std::int32_t bytes) const;
    /// The lowest free range that begins on an even address (2 and 3 bytes) or on a multiple of 4 (from 4 bytes on).
    /// It does not cross a page of `PageSize` bytes; none longer than that is found.
    std::optional<std::int32_t> FirstFree(std::int32_t bytes) const;

    static constexpr std::int32_t PageSize = 4096;

private:
    struct Page {
        std::vector<std::int32_t> uses; ///< per byte
        /// Length of the longest free range; worked out when it is asked for.
        mutable std::optional<std::int32_t> longestFree;
    };

    void Count(std::int32_t address, std::int32_t bytes, std::int32_t change);
    static std::shared_ptr<Page> FreePage(std::int32_t bytes);
    static std::int32_t LongestFree(const Page& page);

    std::int32_t mlAreaSize;
    std::vector<std::shared_ptr<Page>> mcolPages; ///< one that is shared with another map is not changed
};

/// Both areas of a station.
struct StationAddresses {
    AddressMap inputs;
    AddressMap outputs;

    AddressMap& Of(AddressArea area) { return area == AddressArea::Input ? inputs : outputs; }
    const AddressMap& Of(AddressArea area) const { return area == AddressArea::Input ? inputs : outputs; }

    /// The addresses of the module and of its sub-modules.
    void Claim(const ModuleData& module, const Catalogue& catalogue);
    void Release(const ModuleData& module, const Catalogue& catalogue);
};

/// Reads the addresses of the whole station: linear in its modules.
StationAddresses AddressesOf(const StationData& data, const Catalogue& catalogue);

/// The place of the first module that uses any of the addresses, by itself or with a sub-module; the module at one
/// place can be left out. Reads the whole station.
std::optional<PlaceRef> UserOf(AddressArea area, std::int32_t address, std::int32_t bytes, const StationData& data,
                               const Catalogue& catalogue, PlaceRef leftOut = {});

/// The type's bytes and the module's first address in an area.
std::int32_t BytesIn(AddressArea area, const ModuleType& type);
const std::optional<std::int32_t>& AddressIn(AddressArea area, const ModuleData& module);
std::optional<std::int32_t>& AddressIn(AddressArea area, ModuleData& module);

} // namespace zqbchwcx::reference
