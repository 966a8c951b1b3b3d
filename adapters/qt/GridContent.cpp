#include "zqbchwcx/qt/GridContent.h"

#include "zqbchwcx/foundation/VxError.h"

#include <algorithm>
#include <numeric>

namespace zqbchwcx::qt {
namespace {

template <class Member>
Member& At(std::vector<Member>& members, std::int32_t lNumber, const char* kind)
{
    if (lNumber < 1 || static_cast<std::size_t>(lNumber) > members.size())
        throw VxError(vxErrorSubscript, "The grid has no " + std::string(kind) + " " + std::to_string(lNumber));
    return members[static_cast<std::size_t>(lNumber - 1)];
}

template <class Value>
bool Replace(std::optional<Value>& into, const std::optional<Value>& value)
{
    if (!value || into == value) return false;
    into = value;
    return true;
}

template <class Value>
void Complete(std::optional<Value>& into, const std::optional<Value>& value)
{
    if (!into) into = value;
}

void Complete(CellFormat& into, const CellFormat& format)
{
    Complete(into.alignment, format.alignment);
    Complete(into.backColor, format.backColor);
    Complete(into.textColor, format.textColor);
    Complete(into.kind, format.kind);
}

} // namespace

void GridContent::Clear()
{
    mcolColumns.clear();
    mcolRows.clear();
    backColor = vxColorWindowBackground;
}

void GridContent::AddColumn(const QString& caption)
{
    mcolColumns.emplace_back().caption = caption;
    for (GridRow& row : mcolRows) row.cells.emplace_back();
}

void GridContent::RowCount(std::int32_t lRows)
{
    mcolRows.resize(static_cast<std::size_t>(std::max(lRows, 0)));
    for (GridRow& row : mcolRows) row.cells.resize(mcolColumns.size());
}

GridColumn& GridContent::Column(std::int32_t lColumn)
{
    return At(mcolColumns, lColumn, "column");
}

GridRow& GridContent::Row(std::int32_t lRow)
{
    return At(mcolRows, lRow, "row");
}

GridCellContent& GridContent::Cell(GridCell cell)
{
    return At(Row(cell.lRow).cells, cell.lColumn, "column");
}

std::int32_t GridContent::ColumnIndex(std::string_view key) const
{
    const auto found = std::find_if(mcolColumns.begin(), mcolColumns.end(),
                                    [key](const GridColumn& column) { return column.key == key; });
    return found == mcolColumns.end() ? 0 : static_cast<std::int32_t>(found - mcolColumns.begin()) + 1;
}

CellFormat GridContent::Look(GridCell cell) const
{
    CellFormat look = Cell(cell).format;
    Complete(look, Row(cell.lRow).format);
    Complete(look, Column(cell.lColumn).cells);
    Complete(look, {CellAlignment::Left, backColor, vxColorWindowText, CellKind::Text});
    return look;
}

bool Merge(CellFormat& into, const CellFormat& format)
{
    const bool bAlignment = Replace(into.alignment, format.alignment);
    const bool bBack = Replace(into.backColor, format.backColor);
    const bool bText = Replace(into.textColor, format.textColor);
    return Replace(into.kind, format.kind) || bAlignment || bBack || bText;
}

std::vector<std::int32_t> FittedWidths(const std::vector<std::int32_t>& wanted, std::int32_t lAvailable,
                                       std::int32_t lSmallest)
{
    if (wanted.empty()) return {};
    std::vector<std::int32_t> widths;
    for (const std::int32_t lWidth : wanted) widths.push_back(std::max(lWidth, lSmallest));
    widths.back() = std::max(std::min(widths.back(), LastColumnClaim), lSmallest);
    const auto lSum = std::accumulate(widths.begin(), widths.end(), 0);
    const auto lLeast = lSmallest * static_cast<std::int32_t>(widths.size());
    if (lSum > lAvailable && lSum > lLeast) {
        const double share = std::max(0.0, double(lAvailable - lLeast) / double(lSum - lLeast));
        for (std::int32_t& lWidth : widths)
            lWidth = lSmallest + static_cast<std::int32_t>((lWidth - lSmallest) * share);
    }
    widths.back() += std::max(lAvailable - std::accumulate(widths.begin(), widths.end(), 0), 0);
    return widths;
}

} // namespace zqbchwcx::qt
