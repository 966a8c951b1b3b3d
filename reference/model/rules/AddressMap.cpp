#include "zqbchwcx/reference/model/rules/AddressMap.h"

#include <algorithm>

namespace zqbchwcx::reference {
namespace {

constexpr std::int32_t AreaUnit = 1024;
constexpr std::int32_t BytesPerPlace = 16;

std::int32_t Alignment(std::int32_t bytes)
{
    if (bytes >= 4) return 4;
    return bytes >= 2 ? 2 : 1;
}

template <class Action>
void ForEachRange(const ModuleData& module, const Catalogue& catalogue, const Action& action)
{
    if (const ModuleType* type = catalogue.Find(module.orderNumber)) {
        for (const AddressArea area : {AddressArea::Input, AddressArea::Output})
            if (const auto& address = AddressIn(area, module)) action(area, *address, BytesIn(area, *type));
    }
    for (const ModuleData& subModule : module.subModules) ForEachRange(subModule, catalogue, action);
}

} // namespace

std::int32_t AddressAreaSize(const StationData& data)
{
    std::size_t places = 0;
    for (const RackDataPtr& rack : data.racks) places += rack->places.size();
    const auto wanted = static_cast<std::int32_t>(places) * BytesPerPlace;
    return std::max(AreaUnit, (wanted + AreaUnit - 1) / AreaUnit * AreaUnit);
}

AddressMap::AddressMap(std::int32_t areaSize) : mlAreaSize(areaSize)
{
    const std::shared_ptr<Page> wholePage = FreePage(PageSize);
    for (std::int32_t begin = 0; begin < areaSize; begin += PageSize)
        mcolPages.push_back(areaSize - begin >= PageSize ? wholePage : FreePage(areaSize - begin));
}

std::shared_ptr<AddressMap::Page> AddressMap::FreePage(std::int32_t bytes)
{
    auto page = std::make_shared<Page>();
    page->uses.resize(static_cast<std::size_t>(bytes), 0);
    return page;
}

std::int32_t AddressMap::LongestFree(const Page& page)
{
    if (page.longestFree) return *page.longestFree;
    std::int32_t longest = 0;
    std::int32_t length = 0;
    for (const std::int32_t uses : page.uses) {
        length = uses == 0 ? length + 1 : 0;
        longest = std::max(longest, length);
    }
    page.longestFree = longest;
    return longest;
}

void AddressMap::Count(std::int32_t address, std::int32_t bytes, std::int32_t change)
{
    // In 64 bits, because addresses of a damaged station may be anything.
    const std::int64_t end = std::min<std::int64_t>(std::int64_t{address} + bytes, mlAreaSize);
    for (std::int64_t at = std::max(address, 0); at < end;) {
        auto& page = mcolPages[static_cast<std::size_t>(at / PageSize)];
        if (page.use_count() > 1) page = std::make_shared<Page>(*page);
        const std::int64_t pageEnd = std::min(end, (at / PageSize + 1) * PageSize);
        for (; at < pageEnd; ++at) page->uses[static_cast<std::size_t>(at % PageSize)] += change;
        page->longestFree.reset();
    }
}

bool AddressMap::IsFree(std::int32_t address, std::int32_t bytes) const
{
    if (address < 0 || std::int64_t{address} + bytes > mlAreaSize) return false;
    for (std::int32_t at = address; at < address + bytes; ++at) {
        const Page& page = *mcolPages[static_cast<std::size_t>(at / PageSize)];
        if (page.uses[static_cast<std::size_t>(at % PageSize)] != 0) return false;
    }
    return true;
}

std::optional<std::int32_t> AddressMap::FirstFree(std::int32_t bytes) const
{
    const std::int32_t step = Alignment(bytes);
    for (std::size_t i = 0; i < mcolPages.size(); ++i) {
        const Page& page = *mcolPages[i];
        if (LongestFree(page) < bytes) continue;
        const auto size = static_cast<std::int32_t>(page.uses.size());
        for (std::int32_t at = 0; at + bytes <= size; at += step) {
            const auto begin = page.uses.begin() + at;
            if (std::all_of(begin, begin + bytes, [](std::int32_t uses) { return uses == 0; }))
                return static_cast<std::int32_t>(i) * PageSize + at;
        }
    }
    return {};
}

void StationAddresses::Claim(const ModuleData& module, const Catalogue& catalogue)
{
    ForEachRange(module, catalogue,
                 [&](AddressArea area, std::int32_t address, std::int32_t bytes) { Of(area).Claim(address, bytes); });
}

void StationAddresses::Release(const ModuleData& module, const Catalogue& catalogue)
{
    ForEachRange(module, catalogue,
                 [&](AddressArea area, std::int32_t address, std::int32_t bytes) { Of(area).Release(address, bytes); });
}

StationAddresses AddressesOf(const StationData& data, const Catalogue& catalogue)
{
    const std::int32_t size = AddressAreaSize(data);
    StationAddresses addresses{AddressMap(size), AddressMap(size)};
    for (const RackDataPtr& rack : data.racks)
        for (const PlaceData& place : rack->places)
            if (place.module) addresses.Claim(*place.module, catalogue);
    return addresses;
}

std::optional<PlaceRef> UserOf(AddressArea area, std::int32_t address, std::int32_t bytes, const StationData& data,
                               const Catalogue& catalogue, PlaceRef leftOut)
{
    const auto uses = [&](const ModuleData& module) {
        bool bUses = false;
        ForEachRange(module, catalogue, [&](AddressArea usedArea, std::int64_t first, std::int32_t size) {
            bUses = bUses || (usedArea == area && first < std::int64_t{address} + bytes && address < first + size);
        });
        return bUses;
    };
    for (std::size_t rack = 0; rack < data.racks.size(); ++rack) {
        const auto& places = data.racks[rack]->places;
        for (std::size_t i = 0; i < places.size(); ++i) {
            const PlaceRef place{static_cast<std::int32_t>(rack), static_cast<std::int32_t>(i) + 1};
            if (place != leftOut && places[i].module && uses(*places[i].module)) return place;
        }
    }
    return {};
}

std::int32_t BytesIn(AddressArea area, const ModuleType& type)
{
    return area == AddressArea::Input ? type.inputBytes : type.outputBytes;
}

const std::optional<std::int32_t>& AddressIn(AddressArea area, const ModuleData& module)
{
    return area == AddressArea::Input ? module.inputAddress : module.outputAddress;
}

std::optional<std::int32_t>& AddressIn(AddressArea area, ModuleData& module)
{
    return area == AddressArea::Input ? module.inputAddress : module.outputAddress;
}

} // namespace zqbchwcx::reference
