#pragma once

#include "zqbchwcx/views/overview/PlaceLayout.h"
#include "zqbchwcx/views/shared/ShownPlaces.h"

#include <cstdint>
#include <optional>

namespace zqbchwcx {

/// The layout of a distributed station: the places of its one rack in rows of eight, one below the other.
///
/// The gap behind the eighth place of a row and the gap before the first place of the next one are the same position,
/// unless hidden places lie between them; it is shown before the place that follows it.
class RowsLayout : public PlaceLayout {
public:
    static constexpr std::int32_t PlacesInRow = 8;
    static constexpr std::int32_t RowHeight = 96;
    static constexpr Size Place{22, 72};
    static constexpr std::int32_t FirstPlaceLeft = 21;
    static constexpr std::int32_t PlaceTopInRow = 11;

    /// Row and column, both from 0. The gap behind the eighth place has column 8.
    struct Cell {
        std::int32_t lRow = 0;
        std::int32_t lColumn = 0;

        bool operator==(const Cell&) const = default;
    };

    static constexpr std::int32_t PlaceTop(std::int32_t lRow) { return lRow * RowHeight + PlaceTopInRow; }
    static constexpr std::int32_t ColumnLeft(std::int32_t lColumn) { return FirstPlaceLeft + lColumn * Place.width; }

    void Shown(ShownPlaces shown) { mShown = std::move(shown); }
    const ShownPlaces& Shown() const { return mShown; }
    std::int32_t RowCount() const { return (mShown.Count() + PlacesInRow - 1) / PlacesInRow; }
    /// The number of the place in the cell; 0 for none.
    std::int32_t PlaceIn(Cell cell) const;
    /// Of a place or gap that is shown.
    std::optional<Cell> CellOf(const PositionInfo& position) const;
    /// How many places of the row are shown.
    std::int32_t PlacesIn(std::int32_t lRow) const;

    bool Shows(std::int32_t lRack, std::int32_t lPlace) const override;
    bool ShowsGap(std::int32_t lRack, std::int32_t lGap) const override;
    Rect PlaceRect(std::int32_t lRack, std::int32_t lPlace) const override;
    Rect GapLine(std::int32_t lRack, std::int32_t lGap) const override;
    GapNeighbours PlacesBeside(std::int32_t lRack, std::int32_t lGap) const override;
    std::int32_t PositionAt(Point at) const override;
    Point PointOf(const PositionInfo& position) const override;
    Point MenuPointOf(const PositionInfo& position) const override;
    std::vector<PositionRange> RangesBetween(Point corner, Point opposite) const override;

private:
    Cell CellAtIndex(std::int32_t lIndex) const;
    std::optional<Cell> GapCell(std::int32_t lGap) const;
    std::int32_t PositionInRow(std::int32_t lRow, std::int32_t xInRow) const;

    ShownPlaces mShown;
};

} // namespace zqbchwcx
