#pragma once

#include <QTableView>

#include <functional>

namespace quillon_ed {

/// A table of rows that extends a selection from the row that it is told, not from the one that was clicked in it last:
/// other views may have moved that.
class RangeTable : public QTableView {
public:
    /// The row is below 0 when the selection begins in no row of the table.
    RangeTable(std::function<int()> anchorRow, QWidget* parent);

protected:
    void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command) override;

private:
    std::function<int()> moAnchorRow;
};

} // namespace quillon_ed
