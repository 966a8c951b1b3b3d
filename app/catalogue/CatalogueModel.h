#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <QStandardItemModel>

#include <functional>

namespace quillon_ed {

/// The groups and module types of the catalogue as a tree: name, order number. A type can be dragged.
class CatalogueModel : public QStandardItemModel {
    Q_OBJECT

public:
    enum Role {
        OrderNumberRole = Qt::UserRole + 1, ///< of a type; empty for a group
        SearchTextRole,                     ///< what a search looks at, in lower case
    };

    /// Makes the data of a drag from an order number; null when there is nothing to drag.
    using DragData = std::function<QMimeData*(const QString& orderNumber)>;

    CatalogueModel(const zqbchwcx::reference::Catalogue& catalogue, DragData dragData, QObject* parent);

    /// Fills the tree anew with the types that stations of that kind take.
    void Fill(std::int32_t stationKind, zqbchwcx::reference::Language language);

    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    QStringList mimeTypes() const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction; }

private:
    const zqbchwcx::reference::Catalogue& moCatalogue;
    DragData moDragData;
};

} // namespace quillon_ed
