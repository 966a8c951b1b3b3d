#include "zqbchwcx/views/shared/SelectionSnapshot.h"

namespace zqbchwcx {
namespace {

bool GetOrFalse(const Array2D<bool>& array, std::int32_t lRow, std::int32_t lColumn)
{
    return array.Contains(lRow, lColumn) && array.Get(lRow, lColumn);
}

bool HaveSameBounds(const Array2D<bool>& a, const Array2D<bool>& b)
{
    return a.RowFirst() == b.RowFirst() && a.RowLast() == b.RowLast() && a.ColumnFirst() == b.ColumnFirst() &&
           a.ColumnLast() == b.ColumnLast();
}

} // namespace

void SelectionSnapshot::Reset(std::int32_t lRackCount, std::int32_t lPlaceCount)
{
    mSelected = Array2D<bool>(0, lRackCount - 1, 1, lPlaceCount);
    mDrawn = mSelected;
}

void SelectionSnapshot::Take(const Array2D<bool>& selected)
{
    mSelected = selected;
    if (HaveSameBounds(mDrawn, selected)) return;
    Array2D<bool> drawn(selected.RowFirst(), selected.RowLast(), selected.ColumnFirst(), selected.ColumnLast());
    for (std::int32_t lRack = drawn.RowFirst(); lRack <= drawn.RowLast(); ++lRack) {
        for (std::int32_t lPlace = drawn.ColumnFirst(); lPlace <= drawn.ColumnLast(); ++lPlace) {
            drawn.Set(lRack, lPlace, GetOrFalse(mDrawn, lRack, lPlace));
        }
    }
    mDrawn = std::move(drawn);
}

bool SelectionSnapshot::IsSelected(std::int32_t lRack, std::int32_t lPlace) const
{
    return GetOrFalse(mSelected, lRack, lPlace);
}

void SelectionSnapshot::MarkDrawn(std::int32_t lRack, std::int32_t lPlace)
{
    if (mDrawn.Contains(lRack, lPlace)) mDrawn.Set(lRack, lPlace, IsSelected(lRack, lPlace));
}

std::vector<SelectionSnapshot::PlaceIndex> SelectionSnapshot::Outdated() const
{
    std::vector<PlaceIndex> places;
    for (std::int32_t lRack = mSelected.RowFirst(); lRack <= mSelected.RowLast(); ++lRack) {
        for (std::int32_t lPlace = mSelected.ColumnFirst(); lPlace <= mSelected.ColumnLast(); ++lPlace) {
            if (IsSelected(lRack, lPlace) != GetOrFalse(mDrawn, lRack, lPlace)) places.push_back({lRack, lPlace});
        }
    }
    return places;
}

} // namespace zqbchwcx
