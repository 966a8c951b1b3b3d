#include "zqbchwcx/views/overview/CentralPlaceLayout.h"

#include <algorithm>

namespace zqbchwcx {
namespace {

constexpr std::int32_t FirstPlaceLeft = 25;
constexpr std::int32_t PlaceTop = 30;

// The hit test gives a place the thirteen pixels in its middle and leaves the rest to the gaps beside it.
constexpr std::int32_t GapInsideRightPlace = 1;
constexpr std::int32_t GapInsideLeftPlace = 15;

constexpr std::int32_t LastRow = 89;
constexpr std::int32_t FirstX = 22;
constexpr std::int32_t LastX = 224;
constexpr std::int32_t LastGapX = 223;

constexpr Rect RackTile{12, 30, 22, 42};

// A rubber band reaches the places of a rack through these rows and columns.
constexpr std::int32_t BandFirstRow = 31;
constexpr std::int32_t BandLastRow = 89;
constexpr std::int32_t BandFirstX = 24;
constexpr std::int32_t BandLastX = 222;

constexpr bool Contains(const Rect& rect, Point at)
{
    return at.x >= rect.left && at.x < rect.right && at.y >= rect.top && at.y < rect.bottom;
}

constexpr std::int32_t GapX(std::int32_t lGap)
{
    return FirstPlaceLeft + lGap * CentralPlaceLayout::PlaceWidth;
}

std::int32_t PositionInPlaceRow(std::int32_t lRack, std::int32_t x)
{
    if (x < FirstPlaceLeft) return G_GapPosition(lRack, 0);
    if (x >= LastGapX) return G_GapPosition(lRack, CentralPlaceLayout::PlaceCount);
    const std::int32_t lIndex = (x - FirstPlaceLeft) / CentralPlaceLayout::PlaceWidth;
    const std::int32_t xInPlace = x - GapX(lIndex);
    if (xInPlace <= GapInsideRightPlace) return G_GapPosition(lRack, lIndex);
    if (xInPlace >= GapInsideLeftPlace) return G_GapPosition(lRack, lIndex + 1);
    return G_PlacePosition(lRack, lIndex + 1);
}

} // namespace

bool CentralPlaceLayout::Shows(std::int32_t lRack, std::int32_t lPlace) const
{
    return ShowsRack(lRack) && lPlace >= 1 && lPlace <= PlaceCount;
}

bool CentralPlaceLayout::ShowsGap(std::int32_t lRack, std::int32_t lGap) const
{
    return ShowsRack(lRack) && lGap >= 0 && lGap <= PlaceCount;
}

Rect CentralPlaceLayout::PlaceRect(std::int32_t lRack, std::int32_t lPlace) const
{
    return MakeRect(GapX(lPlace - 1), BandTop(lRack) + PlaceTop, PlaceWidth, PlaceHeight);
}

Rect CentralPlaceLayout::GapLine(std::int32_t lRack, std::int32_t lGap) const
{
    return MakeRect(GapX(lGap), BandTop(lRack) + PlaceTop, 0, PlaceHeight);
}

GapNeighbours CentralPlaceLayout::PlacesBeside(std::int32_t lRack, std::int32_t lGap) const
{
    return {Shows(lRack, lGap) ? lGap : 0, Shows(lRack, lGap + 1) ? lGap + 1 : 0};
}

std::int32_t CentralPlaceLayout::PositionAt(Point at) const
{
    const std::int32_t lBand = at.y / BandHeight;
    const std::int32_t lRack = RackCount - 1 - lBand;
    const Point inBand{at.x, at.y - lBand * BandHeight};
    if (!ShowsRack(lRack)) return vxNoPosition;
    if (Contains(RackTile, inBand)) return lRack * vxRackFactor;
    if (inBand.x < FirstX || inBand.x > LastX || inBand.y < PlaceTop || inBand.y > LastRow) return vxNoPosition;
    return PositionInPlaceRow(lRack, inBand.x);
}

Point CentralPlaceLayout::PointOf(const PositionInfo& position) const
{
    const std::int32_t top = BandTop(position.lRack);
    switch (position.eType) {
    case vxPositionGap:
        return {GapX(position.lNumber), top + 60};
    case vxPositionPlace:
        return {GapX(position.lNumber - 1) + PlaceWidth / 2, top + 60};
    case vxPositionRack:
        return {18, top + 36};
    case vxPositionNone:
        break;
    }
    return {};
}

Point CentralPlaceLayout::MenuPointOf(const PositionInfo& position) const
{
    constexpr std::int32_t inset = 3;
    const std::int32_t y = BandTop(position.lRack) + PlaceTop + inset;
    if (position.eType == vxPositionGap) return {GapX(position.lNumber), y};
    if (position.eType == vxPositionPlace) return {GapX(position.lNumber - 1) + inset, y};
    return PointOf(position);
}

std::vector<PositionRange> CentralPlaceLayout::RangesBetween(Point corner, Point opposite) const
{
    const auto [top, bottom] = std::minmax(corner.y, opposite.y);
    const auto [left, right] = std::minmax(corner.x, opposite.x);
    std::vector<PositionRange> ranges;
    for (std::int32_t lRack = 0; lRack < RackCount; ++lRack) {
        if (bottom < BandTop(lRack) + BandFirstRow || top > BandTop(lRack) + BandLastRow) continue;
        ranges.push_back({PositionInPlaceRow(lRack, std::clamp(left, BandFirstX, BandLastX)),
                          PositionInPlaceRow(lRack, std::clamp(right, BandFirstX, BandLastX))});
    }
    return ranges;
}

} // namespace zqbchwcx
