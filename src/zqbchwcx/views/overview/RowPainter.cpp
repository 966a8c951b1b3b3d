#include "zqbchwcx/views/overview/RowPainter.h"

#include "zqbchwcx/views/shared/NumberText.h"

namespace zqbchwcx {
namespace {

constexpr std::int32_t RailStartLeft = 3;
constexpr std::int32_t PlaceStartLeft = RowsLayout::FirstPlaceLeft - 1;

// The marks reach five pixels beyond the places at both ends of a row; above and below, six.
constexpr std::int32_t StripLeft = RowsLayout::FirstPlaceLeft - 5;
constexpr std::int32_t StripWidth = RowsLayout::PlacesInRow * RowsLayout::Place.width + 10;
constexpr std::int32_t StripHeight = 6;

} // namespace

void RowPainter::DrawEmpty()
{
    mCanvas.Box().BackColor(mContext.backColor);
    for (std::int32_t lRow = 0; lRow < mLayout.RowCount(); ++lRow) DrawRow(lRow);
}

void RowPainter::DrawRow(std::int32_t lRow)
{
    const RowPieces& pieces = mStyle.rowPieces;
    const bool bLast = lRow + 1 == mLayout.RowCount();
    DrawPiece(lRow == 0 ? pieces.railFirst : pieces.railLeft, RailStartLeft, lRow);
    DrawPiece(pieces.placeStart, PlaceStartLeft, lRow);
    DrawPiece(bLast ? pieces.railLast : pieces.railRight, RowsLayout::ColumnLeft(mLayout.PlacesIn(lRow)), lRow);
    for (std::int32_t lColumn = 0; lColumn < mLayout.PlacesIn(lRow); ++lColumn) {
        const Point at{RowsLayout::ColumnLeft(lColumn) + mStyle.number.x, RowsLayout::PlaceTop(lRow) + mStyle.number.y};
        G_DrawNumber(mContext.className, mCanvas.Box(), mLayout.PlaceIn({lRow, lColumn}), at, NumberMode::Plain);
    }
}

void RowPainter::DrawPiece(std::string_view name, std::int32_t lLeft, std::int32_t lRow)
{
    if (name.empty()) return;
    mSinglePictures.Draw(mCanvas.Box(), name, {lLeft, RowsLayout::PlaceTop(lRow)}, DrawStyle::Transparent);
}

void RowPainter::EraseMarks(const PositionInfo& position)
{
    const auto cell = mLayout.CellOf(position);
    if (!cell) return;
    auto& surface = mCanvas.Box();
    const std::int32_t lTop = RowsLayout::PlaceTop(cell->lRow);
    for (const std::int32_t lStripTop : {lTop - StripHeight, lTop + mStyle.place.height})
        surface.FillBox(MakeRect(StripLeft, lStripTop, StripWidth, StripHeight), mContext.backColor);
    // The stem of the first gap's mark, of which the place start may leave something uncovered.
    surface.FillBox(MakeRect(PlaceStartLeft, lTop, 1, mStyle.place.height), mContext.backColor);
    DrawRow(cell->lRow);
}

} // namespace zqbchwcx
