#pragma once

#include <cstdint>

namespace zqbchwcx {

/// What a place position names.
enum VxEnumPositionType : std::int32_t {
    vxPositionNone = 0,
    vxPositionGap = 1,
    vxPositionPlace = 2,
    vxPositionRack = 3,
};

inline constexpr std::int32_t vxNoPosition = -1;
inline constexpr std::int32_t vxRackFactor = 1000;
inline constexpr std::int32_t vxSubPositionFactor = 100000;

/// A place position S·100000 + R·1000 + C taken apart. C is 0 for the rack itself, 2·N for place N, 2·G+1 for the gap
/// between place G and place G+1; `lNumber` is that N or G.
struct PositionInfo {
    VxEnumPositionType eType = vxPositionNone;
    std::int32_t lRack = 0;
    std::int32_t lNumber = 0;
    std::int32_t lSubPosition = 0;
};

/// Takes a position apart. A negative one is none.
constexpr PositionInfo G_PositionInfo(std::int32_t lPosition) noexcept
{
    if (lPosition < 0) return {};
    const std::int32_t lCode = lPosition % vxRackFactor;
    const VxEnumPositionType eType = lCode == 0 ? vxPositionRack : lCode % 2 == 1 ? vxPositionGap : vxPositionPlace;
    return {eType, lPosition % vxSubPositionFactor / vxRackFactor, lCode / 2, lPosition / vxSubPositionFactor};
}

constexpr std::int32_t G_RackPosition(std::int32_t lRack)
{
    return lRack * vxRackFactor;
}

constexpr std::int32_t G_PlacePosition(std::int32_t lRack, std::int32_t lPlace)
{
    return lRack * vxRackFactor + 2 * lPlace;
}

constexpr std::int32_t G_GapPosition(std::int32_t lRack, std::int32_t lGap)
{
    return lRack * vxRackFactor + 2 * lGap + 1;
}

/// The line, from 1, of a sub-module in the list of a place's sub-modules.
constexpr std::int32_t G_SubModulePosition(std::int32_t lLine, std::int32_t lRack, std::int32_t lPlace)
{
    return lLine * vxSubPositionFactor + G_PlacePosition(lRack, lPlace);
}

/// The position that was taken apart.
constexpr std::int32_t G_Position(const PositionInfo& info)
{
    const std::int32_t lElement = info.eType == vxPositionGap ? G_GapPosition(info.lRack, info.lNumber)
                                                              : G_PlacePosition(info.lRack, info.lNumber);
    return info.eType == vxPositionNone ? vxNoPosition : info.lSubPosition * vxSubPositionFactor + lElement;
}

} // namespace zqbchwcx
