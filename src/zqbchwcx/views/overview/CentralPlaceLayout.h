#pragma once

#include "zqbchwcx/views/overview/PlaceLayout.h"

namespace zqbchwcx {

/// The layout of a central station: four bands, rack 3 on top and rack 0 at the bottom, eleven places each.
class CentralPlaceLayout : public PlaceLayout {
public:
    static constexpr std::int32_t RackCount = 4;
    static constexpr std::int32_t PlaceCount = 11;
    static constexpr std::int32_t BandHeight = 92;
    static constexpr std::int32_t PlaceWidth = 18;
    static constexpr std::int32_t PlaceHeight = 60;

    static constexpr std::int32_t BandTop(std::int32_t lRack) { return (RackCount - 1 - lRack) * BandHeight; }
    static constexpr bool ShowsRack(std::int32_t lRack) { return lRack >= 0 && lRack < RackCount; }

    bool Shows(std::int32_t lRack, std::int32_t lPlace) const override;
    bool ShowsGap(std::int32_t lRack, std::int32_t lGap) const override;
    Rect PlaceRect(std::int32_t lRack, std::int32_t lPlace) const override;
    Rect GapLine(std::int32_t lRack, std::int32_t lGap) const override;
    GapNeighbours PlacesBeside(std::int32_t lRack, std::int32_t lGap) const override;
    std::int32_t PositionAt(Point at) const override;
    Point PointOf(const PositionInfo& position) const override;
    Point MenuPointOf(const PositionInfo& position) const override;
    std::vector<PositionRange> RangesBetween(Point corner, Point opposite) const override;
};

} // namespace zqbchwcx
