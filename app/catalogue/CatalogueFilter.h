#pragma once

#include <QSortFilterProxyModel>

namespace quillon_ed {

/// Keeps the module types in which every searched word occurs, and the groups above them.
class CatalogueFilter : public QSortFilterProxyModel {
    Q_OBJECT

public:
    explicit CatalogueFilter(QObject* parent);

    void Search(const QString& text);
    /// Types that are kept, below the given index.
    int TypeCount(const QModelIndex& parent = {}) const;
    /// The first type in the order of the tree; invalid when there is none.
    QModelIndex FirstType(const QModelIndex& parent = {}) const;

protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

private:
    QStringList mcolWords;
};

} // namespace quillon_ed
