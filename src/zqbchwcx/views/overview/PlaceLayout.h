#pragma once

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/platform/Geometry.h"

#include <cstdint>
#include <vector>

namespace zqbchwcx {

/// The places between two positions of one rack.
struct PositionRange {
    std::int32_t lFrom = vxNoPosition;
    std::int32_t lTo = vxNoPosition;

    bool operator==(const PositionRange&) const = default;
};

/// The places at the left and at the right of a gap, as they are shown; 0 for none.
struct GapNeighbours {
    std::int32_t lLeft = 0;
    std::int32_t lRight = 0;

    bool operator==(const GapNeighbours&) const = default;
};

/// Where racks, places and gaps are on the picture of an overview. Points are logical pixels of the picture.
class PlaceLayout {
public:
    virtual ~PlaceLayout() = default;

    /// Whether the place has a spot on the picture at all.
    virtual bool Shows(std::int32_t lRack, std::int32_t lPlace) const = 0;
    virtual bool ShowsGap(std::int32_t lRack, std::int32_t lGap) const = 0;
    virtual Rect PlaceRect(std::int32_t lRack, std::int32_t lPlace) const = 0;
    /// The line between two places: its x, and the y and height of the places beside it. It has no width.
    virtual Rect GapLine(std::int32_t lRack, std::int32_t lGap) const = 0;
    virtual GapNeighbours PlacesBeside(std::int32_t lRack, std::int32_t lGap) const = 0;

    /// The position under the point, -1 for none.
    virtual std::int32_t PositionAt(Point at) const = 0;
    /// The point that stands for the position; the origin for no position.
    virtual Point PointOf(const PositionInfo& position) const = 0;
    /// Where a menu for the position opens.
    virtual Point MenuPointOf(const PositionInfo& position) const = 0;
    /// What a rectangle with these opposite corners covers: one range per row of places, the lowest rack number first.
    virtual std::vector<PositionRange> RangesBetween(Point corner, Point opposite) const = 0;
};

} // namespace zqbchwcx
