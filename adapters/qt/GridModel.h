#pragma once

#include "zqbchwcx/qt/GridContent.h"

#include <QAbstractTableModel>

namespace zqbchwcx::qt {

/// The content of a grid as the desktop's tables and screen readers take it. Row 0 of the model is row 1 of the grid.
class GridModel : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    const GridContent& Content() const { return mContent; }
    /// For what changes neither rows nor columns.
    GridContent& Edit() { return mContent; }

    void Reset();
    void AddColumn(const QString& caption);
    void SetRowCount(std::int32_t lRows);
    /// Tells screen readers of a changed cell.
    void TellChanged(GridCell cell);
    void TellHeaderChanged(std::int32_t lColumn);

    QModelIndex IndexOf(GridCell cell) const { return index(cell.lRow - 1, cell.lColumn - 1); }
    static GridCell CellOf(const QModelIndex& index) { return {index.row() + 1, index.column() + 1}; }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : mContent.RowCount(); }
    int columnCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : mContent.ColumnCount();
    }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString RestOfRow(std::int32_t lRow) const;

    GridContent mContent;
};

} // namespace zqbchwcx::qt
