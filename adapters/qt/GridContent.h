#pragma once

#include "zqbchwcx/platform/Grid.h"

#include <QString>

#include <vector>

namespace zqbchwcx::qt {

inline constexpr std::int32_t DefaultColumnWidth = 100;

struct GridColumn {
    QString caption;
    std::string key;
    std::int32_t lWidth = DefaultColumnWidth; ///< as put or as the user made it
    CellFormat header;
    CellFormat cells;
};

struct GridCellContent {
    QString text;
    ImagePtr picture;
    CellFormat format;
};

struct GridRow {
    std::vector<GridCellContent> cells; ///< by column
    CellFormat format;
    bool bSelected = false;
};

/// What a grid shows, and how. Rows and columns count from 1; asking for one that is not there throws VxError.
class GridContent {
public:
    std::int32_t ColumnCount() const { return static_cast<std::int32_t>(mcolColumns.size()); }
    std::int32_t RowCount() const { return static_cast<std::int32_t>(mcolRows.size()); }
    void Clear();
    void AddColumn(const QString& caption);
    void RowCount(std::int32_t lRows);

    GridColumn& Column(std::int32_t lColumn);
    const GridColumn& Column(std::int32_t lColumn) const { return const_cast<GridContent*>(this)->Column(lColumn); }
    GridRow& Row(std::int32_t lRow);
    const GridRow& Row(std::int32_t lRow) const { return const_cast<GridContent*>(this)->Row(lRow); }
    GridCellContent& Cell(GridCell cell);
    const GridCellContent& Cell(GridCell cell) const { return const_cast<GridContent*>(this)->Cell(cell); }
    /// The column with the key, 0 when there is none.
    std::int32_t ColumnIndex(std::string_view key) const;

    /// How the cell is drawn: its own format, completed by its row's, its column's and the background.
    CellFormat Look(GridCell cell) const;

    OleColor backColor = vxColorWindowBackground;

private:
    std::vector<GridColumn> mcolColumns;
    std::vector<GridRow> mcolRows;
};

/// Replaces what the format says and keeps what it leaves open. True when that changes something.
bool Merge(CellFormat& into, const CellFormat& format);

/// More than this of its wanted width the last column, which takes what is left over, does not claim from the others.
inline constexpr std::int32_t LastColumnClaim = 60;

/// The widths of columns, from the left, in a grid of that width: as wanted, the last one as wide as what is left over.
/// In a grid that is too narrow all are narrower in proportion, but none narrower than the smallest width.
std::vector<std::int32_t> FittedWidths(const std::vector<std::int32_t>& wanted, std::int32_t lAvailable,
                                       std::int32_t lSmallest);

} // namespace zqbchwcx::qt
