#pragma once

#include "zqbchwcx/foundation/Array2D.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/Registration.h"
#include "zqbchwcx/platform/Grid.h"
#include "zqbchwcx/views/shared/ViewContext.h"
#include "zqbchwcx/views/table/ColumnSet.h"
#include "zqbchwcx/views/table/ColumnStore.h"
#include "zqbchwcx/views/table/RowFill.h"
#include "zqbchwcx/views/table/RowMap.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zqbchwcx {

/// What the grid of a table shows: its columns, a row for each place of one rack, the selection and the focus.
class TableContent {
public:
    /// The layout suffix ends the names of the parameters that keep the columns.
    TableContent(ViewContext& context, const TextModuleUse& texts, const RowMap& rows, std::string_view layoutSuffix)
        : mContext(context), mTexts(texts), mRows(rows), msLayoutSuffix(layoutSuffix), mRowFill(context, texts),
          mColumnStore(context.className)
    {
    }

    /// Shows everything in the grid, which outlives the content.
    void Use(zqbchwcx::Grid& grid) { mpGrid = &grid; }
    zqbchwcx::Grid& Grid() const;

    /// Keeps the columns as the user left them.
    void SaveColumns() noexcept;
    /// The columns of the style, as the user left them, over empty rows.
    void InitializeGrid() noexcept;
    void ResetColumns();
    /// As many empty rows as the row map has, with the numbers of their places.
    void InitializeRows();
    /// The background by the lock and the display mode of the station.
    void SetBackColor() noexcept;

    std::int32_t ActiveRack() const { return mlRack; }
    /// Whose places the next filling shows.
    void ActiveRack(std::int32_t lRack) { mlRack = lRack; }

    void FillAll();
    /// Does nothing for a place that has no row here.
    void FillPlace(const VxHWRackPlacePtr& oPlace);
    /// Nothing is selected, in racks and places of the station.
    void ResetSelection();
    void TakeSelection();
    void ShowSelection();
    /// The current cell, and the mark of a gap that has the focus while nothing is selected.
    void ShowFocus(const PositionInfo& previous);
    void P_EnsureVisibleFocus();

    VxHWRackPlacePtr PlaceOfRow(std::int32_t lRow) const;
    /// The position of the place that the row shows; no position for another row.
    std::int32_t PositionOfRow(std::int32_t lRow) const;
    /// The row that stands for the position; 0 for none. A gap stands for the place that it follows, and a place
    /// without a row for the next one that has a row.
    std::int32_t RowOf(const PositionInfo& position) const;

private:
    ColumnSet Columns() const;
    std::string P_GetParamName() const;
    bool IsSelected(std::int32_t lPlace) const;
    void MarkGap(const PositionInfo& gap, bool bMarked);

    ViewContext& mContext;
    const TextModuleUse& mTexts;
    const RowMap& mRows;
    std::string_view msLayoutSuffix;
    zqbchwcx::Grid* mpGrid = nullptr;
    RowFill mRowFill;
    ColumnStore mColumnStore;
    std::int32_t mlRack = 0;
    Array2D<bool> mabSelected;
};

} // namespace zqbchwcx
