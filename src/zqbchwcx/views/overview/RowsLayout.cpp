#include "zqbchwcx/views/overview/RowsLayout.h"

#include <algorithm>

namespace zqbchwcx {
namespace {

using Cell = RowsLayout::Cell;

// The hit test: columns of the picture that lie on a row at all, and what of a place belongs to the gaps beside it.
constexpr std::int32_t FirstX = 19;
constexpr std::int32_t LastX = 198;
constexpr std::int32_t LastLine = 82;
constexpr std::int32_t GapInsideRightPlace = 1;
constexpr std::int32_t GapInsideLeftPlace = 19;
constexpr std::int32_t LastPlacesX = RowsLayout::PlacesInRow * RowsLayout::Place.width - 1;

// A rubber band reaches the places of a row through these lines.
constexpr std::int32_t BandFirstLine = 12;
constexpr std::int32_t BandLastLine = LastLine;

constexpr std::int32_t MiddleInPlace = RowsLayout::Place.height / 2;

} // namespace

std::int32_t RowsLayout::PlaceIn(Cell cell) const
{
    if (cell.lRow < 0 || cell.lColumn < 0 || cell.lColumn >= PlacesInRow) return 0;
    return mShown.NumberAt(cell.lRow * PlacesInRow + cell.lColumn + 1);
}

std::int32_t RowsLayout::PlacesIn(std::int32_t lRow) const
{
    return std::clamp(mShown.Count() - lRow * PlacesInRow, 0, PlacesInRow);
}

Cell RowsLayout::CellAtIndex(std::int32_t lIndex) const
{
    return {(lIndex - 1) / PlacesInRow, (lIndex - 1) % PlacesInRow};
}

std::optional<Cell> RowsLayout::GapCell(std::int32_t lGap) const
{
    if (lGap < 0 || lGap > mShown.PlaceCount() || mShown.Count() == 0) return {};
    const bool bBehindPlace = mShown.IndexOf(lGap) != 0 && mShown.IndexOf(lGap + 1) == 0;
    const std::int32_t lNext = mShown.IndexFrom(lGap + 1);
    if (!bBehindPlace && lNext != 0) return CellAtIndex(lNext);
    Cell cell = CellAtIndex(bBehindPlace ? mShown.IndexOf(lGap) : mShown.Count());
    ++cell.lColumn;
    return cell;
}

std::optional<Cell> RowsLayout::CellOf(const PositionInfo& position) const
{
    if (position.lRack != 0) return {};
    if (position.eType == vxPositionGap) return GapCell(position.lNumber);
    const std::int32_t lIndex = position.eType == vxPositionPlace ? mShown.IndexOf(position.lNumber) : 0;
    return lIndex != 0 ? std::optional(CellAtIndex(lIndex)) : std::nullopt;
}

bool RowsLayout::Shows(std::int32_t lRack, std::int32_t lPlace) const
{
    return lRack == 0 && mShown.IndexOf(lPlace) != 0;
}

bool RowsLayout::ShowsGap(std::int32_t lRack, std::int32_t lGap) const
{
    return lRack == 0 && GapCell(lGap).has_value();
}

Rect RowsLayout::PlaceRect(std::int32_t /*lRack*/, std::int32_t lPlace) const
{
    const Cell cell = CellAtIndex(mShown.IndexOf(lPlace));
    return MakeRect(ColumnLeft(cell.lColumn), PlaceTop(cell.lRow), Place.width, Place.height);
}

Rect RowsLayout::GapLine(std::int32_t /*lRack*/, std::int32_t lGap) const
{
    const Cell cell = GapCell(lGap).value_or(Cell{});
    return MakeRect(ColumnLeft(cell.lColumn), PlaceTop(cell.lRow), 0, Place.height);
}

GapNeighbours RowsLayout::PlacesBeside(std::int32_t /*lRack*/, std::int32_t lGap) const
{
    const auto cell = GapCell(lGap);
    if (!cell) return {};
    return {PlaceIn({cell->lRow, cell->lColumn - 1}), PlaceIn(*cell)};
}

std::int32_t RowsLayout::PositionAt(Point at) const
{
    if (at.x < FirstX || at.x > LastX) return vxNoPosition;
    const std::int32_t lRow = at.y / RowHeight;
    if (lRow >= RowCount()) return vxNoPosition;
    const std::int32_t yInRow = at.y - lRow * RowHeight;
    if (yInRow < PlaceTopInRow || yInRow > LastLine) return vxNoPosition;
    const std::int32_t xInRow = at.x - FirstPlaceLeft;
    // One pixel behind the last place still belongs to the gap after it.
    const std::int32_t lPlaces = PlacesIn(lRow);
    if (lPlaces < PlacesInRow && xInRow > lPlaces * Place.width + 1) return vxNoPosition;
    return PositionInRow(lRow, xInRow);
}

std::int32_t RowsLayout::PositionInRow(std::int32_t lRow, std::int32_t xInRow) const
{
    if (xInRow < 0) return G_GapPosition(0, PlaceIn({lRow, 0}) - 1);
    if (xInRow > LastPlacesX) return G_GapPosition(0, PlaceIn({lRow, PlacesInRow - 1}));
    const std::int32_t lColumn = xInRow / Place.width;
    const std::int32_t xInPlace = xInRow % Place.width;
    const std::int32_t lPlace = PlaceIn({lRow, lColumn});
    if (lPlace == 0) return G_GapPosition(0, mShown.NumberFrom(mShown.LastNumber() + 1) - 1);
    if (xInPlace <= GapInsideRightPlace) return G_GapPosition(0, lPlace - 1);
    if (xInPlace >= GapInsideLeftPlace) return G_GapPosition(0, mShown.NumberFrom(lPlace + 1) - 1);
    return G_PlacePosition(0, lPlace);
}

Point RowsLayout::PointOf(const PositionInfo& position) const
{
    const auto cell = CellOf(position);
    if (!cell) return {};
    // A gap's point is the pixel at its left, which belongs to it at the beginning of a row, too.
    const std::int32_t x = position.eType == vxPositionGap ? -1 : Place.width / 2 - 1;
    return {ColumnLeft(cell->lColumn) + x, PlaceTop(cell->lRow) + MiddleInPlace};
}

Point RowsLayout::MenuPointOf(const PositionInfo& position) const
{
    constexpr std::int32_t inset = 3;
    const auto cell = CellOf(position);
    if (!cell) return {};
    const std::int32_t x = position.eType == vxPositionGap ? 0 : inset;
    return {ColumnLeft(cell->lColumn) + x, PlaceTop(cell->lRow) + inset};
}

std::vector<PositionRange> RowsLayout::RangesBetween(Point corner, Point opposite) const
{
    const auto [top, bottom] = std::minmax(corner.y, opposite.y);
    const auto [left, right] = std::minmax(corner.x, opposite.x);
    std::vector<PositionRange> ranges;
    for (std::int32_t lRow = 0; lRow < RowCount(); ++lRow) {
        if (bottom < lRow * RowHeight + BandFirstLine || top > lRow * RowHeight + BandLastLine) continue;
        const std::int32_t lLast = PlacesIn(lRow) * Place.width - 1;
        ranges.push_back({PositionInRow(lRow, std::clamp(left - FirstPlaceLeft, -1, lLast)),
                          PositionInRow(lRow, std::clamp(right - FirstPlaceLeft, -1, lLast))});
    }
    return ranges;
}

} // namespace zqbchwcx
