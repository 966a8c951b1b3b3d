#include "zqbchwcx/views/table/TableContent.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"
#include "zqbchwcx/views/table/RedrawOff.h"

#include <algorithm>

namespace zqbchwcx {
Grid& TableContent::Grid() const
{
    return *G_Require(mpGrid, "The grid");
}

void TableContent::SaveColumns() noexcept
{
    if (mpGrid != nullptr) mColumnStore.SaveSettings(P_GetParamName(), *mpGrid);
}

void TableContent::InitializeGrid() noexcept
{
    G_Trap(mContext.className, "P_InitializeGrid", [&] {
        auto& grid = Grid();
        const RedrawOff redrawOff(mContext.className, grid);
        grid.Reset();
        grid.BackColor(mContext.backColor); // below the rows, too
        if (!mContext.oStation) return;
        mRowFill.ReadTexts();
        G_AddColumns(grid, Columns(), *mTexts);
        ResetColumns();
        mColumnStore.ReadSettings(P_GetParamName());
        mColumnStore.Apply(grid);
        InitializeRows();
    });
}

void TableContent::InitializeRows()
{
    auto& grid = Grid();
    grid.RowCount(0);
    grid.RowCount(mRows.RowCount());
    const std::int32_t lNumberColumn = grid.ColumnIndex(ColumnKey::RackPlace);
    if (lNumberColumn == 0) return;
    for (std::int32_t lRow = 1; lRow <= mRows.RowCount(); ++lRow)
        grid.CellText({lRow, lNumberColumn}, std::to_string(mRows.PlaceOf(lRow)));
}

void TableContent::ResetColumns()
{
    G_ResetColumns(Grid(), Columns());
}

void TableContent::SetBackColor() noexcept
{
    G_Trap(mContext.className, "P_SetBackColor", [&] {
        mContext.backColor = vxColorWindowBackground;
        if (mContext.bLocked) mContext.backColor = G_ColorDisabledBackground();
        else if (mContext.oStation && mContext.Station()->DisplayMode() != vxDisplayModeOffline)
            mContext.backColor = G_ColorOnlineBackground;
        Grid().BackColor(mContext.backColor);
    });
}

void TableContent::FillAll()
{
    const RedrawOff redrawOff(mContext.className, Grid());
    for (const auto& oPlace : G_RackByNumber(mContext.oStation, mlRack)->Places()) FillPlace(oPlace);
}

void TableContent::FillPlace(const VxHWRackPlacePtr& oPlace)
{
    if (oPlace->Rack()->Number() != mlRack) return;
    const std::int32_t lPlace = oPlace->Number();
    const std::int32_t lRow = mRows.RowOf(lPlace);
    if (lRow == 0) return;
    const RedrawOff redrawOff(mContext.className, Grid());
    mRowFill.Fill(Grid(), lRow, oPlace);
    Grid().RowSelected(lRow, IsSelected(lPlace));
}

void TableContent::ResetSelection()
{
    mabSelected = {};
    if (!mContext.oStation) return;
    const auto oRacks = mContext.Station()->Racks();
    mabSelected = Array2D<bool>(0, oRacks->Count() - 1, 1, oRacks->Item(0)->Places()->Count());
}

void TableContent::TakeSelection()
{
    mabSelected = mContext.SelHandler()->SelPlacesArray();
}

void TableContent::ShowSelection()
{
    auto& grid = Grid();
    const RedrawOff redrawOff(mContext.className, grid);
    for (std::int32_t lRow = 1; lRow <= grid.RowCount(); ++lRow) {
        const bool bSelected = IsSelected(mRows.PlaceOf(lRow));
        if (grid.RowSelected(lRow) != bSelected) grid.RowSelected(lRow, bSelected);
    }
}

void TableContent::ShowFocus(const PositionInfo& previous)
{
    const PositionInfo focus = G_PositionInfo(mContext.FocusPosition());
    if (mContext.oSelHandler && mContext.oSelHandler->SelPlaces()->Count() == 0) {
        if (previous.eType == vxPositionGap) MarkGap(previous, false);
        if (focus.eType == vxPositionGap) MarkGap(focus, true);
    }
    const std::int32_t lRow = RowOf(focus);
    if (lRow == 0 || Grid().ColumnCount() == 0) return;
    const GridCell current = Grid().CurrentCell();
    if (current.lRow != lRow) Grid().CurrentCell({lRow, std::max(current.lColumn, 1)}, false);
}

void TableContent::P_EnsureVisibleFocus()
{
    if (const std::int32_t lRow = RowOf(G_PositionInfo(mContext.FocusPosition()))) Grid().MakeRowVisible(lRow);
}

VxHWRackPlacePtr TableContent::PlaceOfRow(std::int32_t lRow) const
{
    const std::int32_t lPlace = mRows.PlaceOf(lRow);
    if (lPlace == 0 || !G_Exists(mContext.oStation, {vxPositionPlace, mlRack, lPlace, 0})) return nullptr;
    return mContext.Place(mlRack, lPlace);
}

std::int32_t TableContent::PositionOfRow(std::int32_t lRow) const
{
    const std::int32_t lPlace = mRows.PlaceOf(lRow);
    return lPlace == 0 ? vxNoPosition : G_PlacePosition(mlRack, lPlace);
}

std::int32_t TableContent::RowOf(const PositionInfo& position) const
{
    const bool bHasRow = position.eType == vxPositionPlace || position.eType == vxPositionGap;
    return bHasRow && position.lRack == mlRack ? mRows.RowFor(G_PlaceNumberAt(position)) : 0;
}

ColumnSet TableContent::Columns() const
{
    switch (mContext.eStyle) {
    case vxStyleHWConfig:
        return G_ConfigColumns();
    case vxStyleHWDiag:
        return G_DiagColumns();
    default:
        return {};
    }
}

std::string TableContent::P_GetParamName() const
{
    switch (mContext.eStyle) {
    case vxStyleHWConfig:
        return std::string("zqbvhwcx/HWConfig/GridLayout").append(msLayoutSuffix);
    case vxStyleHWDiag:
        return std::string("zqbvhwcx/HWDiag/GridLayout").append(msLayoutSuffix);
    default:
        return {};
    }
}

bool TableContent::IsSelected(std::int32_t lPlace) const
{
    return mabSelected.Contains(mlRack, lPlace) && mabSelected.Get(mlRack, lPlace);
}

void TableContent::MarkGap(const PositionInfo& gap, bool bMarked)
{
    const std::int32_t lRow = RowOf(gap);
    const std::int32_t lPlace = mRows.PlaceOf(lRow);
    if (!mabSelected.Contains(gap.lRack, lPlace)) return;
    mabSelected.Set(gap.lRack, lPlace, bMarked);
    Grid().RowSelected(lRow, bMarked);
}

} // namespace zqbchwcx
