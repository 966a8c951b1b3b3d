#include "app/window/RangeTable.h"

#include <algorithm>
#include <utility>

namespace quillon_ed {

RangeTable::RangeTable(std::function<int()> anchorRow, QWidget* parent)
    : QTableView(parent), moAnchorRow(std::move(anchorRow))
{
}

void RangeTable::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    const int anchor = moAnchorRow();
    const bool extends = command.testFlag(QItemSelectionModel::Current);
    if (!extends || anchor < 0 || !currentIndex().isValid()) return QTableView::setSelection(rect, command);
    const auto [first, last] = std::minmax({anchor, currentIndex().row()});
    selectionModel()->select({model()->index(first, 0), model()->index(last, 0)}, command);
}

} // namespace quillon_ed
