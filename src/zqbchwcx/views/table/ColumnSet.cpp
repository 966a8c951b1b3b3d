#include "zqbchwcx/views/table/ColumnSet.h"

#include <numeric>
#include <vector>

namespace zqbchwcx {
namespace {

constexpr ColumnDefinition ConfigColumns[] = {
    {ColumnKey::RackPlace, 1001, 32, CellAlignment::Centre},
    {ColumnKey::Module, 1002, 78},
    {ColumnKey::OrderNumber, 1003, 93},
    {ColumnKey::InputAddress, 1004, 59},
    {ColumnKey::OutputAddress, 1005, 59},
    {ColumnKey::Comment, 1006, 0, CellAlignment::Left, CellKind::Comment},
};

constexpr ColumnDefinition DiagColumns[] = {
    {ColumnKey::RackPlace, 1001, 32, CellAlignment::Centre},
    {ColumnKey::Status, 1007, 75},
    {ColumnKey::Module, 1002, 65},
    {ColumnKey::OrderNumber, 1003, 93},
    {ColumnKey::BasicAddress, 1017},
};

/// What a grid gives a column that names no width.
constexpr std::int32_t UsualWidth = 100;

} // namespace

ColumnSet G_ConfigColumns()
{
    return ConfigColumns;
}

ColumnSet G_DiagColumns()
{
    return DiagColumns;
}

void G_AddColumns(Grid& grid, ColumnSet columns, TextModule& texts)
{
    for (const ColumnDefinition& column : columns) {
        const std::int32_t lColumn = grid.AddColumn(texts.Text(column.lCaptionText));
        grid.ColumnKey(lColumn, column.key);
        CellFormat format;
        format.alignment = column.alignment;
        grid.AddHeaderFormat(lColumn, format);
        format.kind = column.kind;
        grid.AddCellFormat(lColumn, format);
    }
}

void G_ResetColumns(Grid& grid, ColumnSet columns)
{
    std::vector<std::int32_t> order(columns.size());
    std::iota(order.begin(), order.end(), 1);
    grid.ColumnOrder(order);
    std::int32_t lColumn = 0;
    for (const ColumnDefinition& column : columns)
        grid.ColumnWidth(++lColumn, column.lWidth > 0 ? column.lWidth : UsualWidth);
}

} // namespace zqbchwcx
