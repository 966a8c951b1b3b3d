#include "app/catalogue/CatalogueFilter.h"

#include "app/catalogue/CatalogueModel.h"

#include <algorithm>

namespace quillon_ed {

namespace {

bool IsType(const QModelIndex& index)
{
    return !index.data(CatalogueModel::OrderNumberRole).toString().isEmpty();
}

} // namespace

CatalogueFilter::CatalogueFilter(QObject* parent) : QSortFilterProxyModel(parent)
{
    setRecursiveFilteringEnabled(true);
}

void CatalogueFilter::Search(const QString& text)
{
    mcolWords = text.toLower().split(u' ', Qt::SkipEmptyParts);
    invalidateFilter();
}

int CatalogueFilter::TypeCount(const QModelIndex& parent) const
{
    int count = 0;
    for (int row = 0; row < rowCount(parent); ++row) {
        const QModelIndex child = index(row, 0, parent);
        count += IsType(child) ? 1 : TypeCount(child);
    }
    return count;
}

QModelIndex CatalogueFilter::FirstType(const QModelIndex& parent) const
{
    for (int row = 0; row < rowCount(parent); ++row) {
        const QModelIndex child = index(row, 0, parent);
        const QModelIndex found = IsType(child) ? child : FirstType(child);
        if (found.isValid()) return found;
    }
    return {};
}

bool CatalogueFilter::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    const QModelIndex item = sourceModel()->index(row, 0, parent);
    if (!IsType(item)) return false; // a group stays for the sake of what it holds
    const QString searched = item.data(CatalogueModel::SearchTextRole).toString();
    return std::all_of(mcolWords.begin(), mcolWords.end(),
                       [&](const QString& word) { return searched.contains(word); });
}

} // namespace quillon_ed
