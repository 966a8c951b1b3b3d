#include "zqbchwcx/qt/GridModel.h"

#include "zqbchwcx/qt/PlainText.h"

#include <QStringList>

#include <algorithm>

namespace zqbchwcx::qt {
namespace {

/// Of a text that is shown or read out; more than any cell has room for.
constexpr qsizetype LongestShown = 400;

} // namespace

void GridModel::Reset()
{
    beginResetModel();
    mContent.Clear();
    endResetModel();
}

void GridModel::AddColumn(const QString& caption)
{
    beginInsertColumns({}, mContent.ColumnCount(), mContent.ColumnCount());
    mContent.AddColumn(caption);
    endInsertColumns();
}

void GridModel::SetRowCount(std::int32_t lRows)
{
    const std::int32_t lBefore = mContent.RowCount();
    if (lRows > lBefore) {
        beginInsertRows({}, lBefore, lRows - 1);
        mContent.RowCount(lRows);
        endInsertRows();
    } else if (lRows < lBefore) {
        beginRemoveRows({}, std::max(lRows, 0), lBefore - 1);
        mContent.RowCount(lRows);
        endRemoveRows();
    }
}

void GridModel::TellChanged(GridCell cell)
{
    const QModelIndex changed = IndexOf(cell);
    emit dataChanged(changed, changed);
}

void GridModel::TellHeaderChanged(std::int32_t lColumn)
{
    emit headerDataChanged(Qt::Horizontal, lColumn - 1, lColumn - 1);
}

QVariant GridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) return {};
    const GridCell cell = CellOf(index);
    switch (role) {
    case Qt::EditRole:
        return mContent.Cell(cell).text;
    case Qt::DisplayRole:
        return PlainText(mContent.Cell(cell).text, LongestShown);
    case Qt::AccessibleDescriptionRole:
        // The first column says which row it is; who hears only that wants to know what is in it.
        return cell.lColumn == 1 ? RestOfRow(cell.lRow) : QVariant();
    default:
        return {};
    }
}

QString GridModel::RestOfRow(std::int32_t lRow) const
{
    QStringList texts;
    for (std::int32_t lColumn = 2; lColumn <= mContent.ColumnCount(); ++lColumn) {
        const QString& text = mContent.Cell({lRow, lColumn}).text;
        if (!text.isEmpty()) texts << mContent.Column(lColumn).caption + u' ' + text;
    }
    return PlainText(texts.join(QStringLiteral(", ")), LongestShown);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole) return {};
    if (orientation == Qt::Horizontal) return mContent.Column(section + 1).caption;
    // A row is known by what its first column says.
    return mContent.ColumnCount() > 0 ? QVariant(mContent.Cell({section + 1, 1}).text) : QVariant();
}

} // namespace zqbchwcx::qt
