#include "app/catalogue/CatalogueModel.h"

#include "app/host/PlainText.h"
#include "app/host/Strings.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/qt/ClipboardFormats.h"

#include <QMimeData>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

class TreeFiller {
public:
    TreeFiller(const Catalogue& catalogue, std::int32_t stationKind, Language language)
        : moCatalogue(catalogue), mlStationKind(stationKind), meLanguage(language)
    {
    }

    /// Adds the groups that hold something for the kind of station.
    void Fill(QStandardItem& parent, const std::vector<CatalogueGroup>& groups) const
    {
        for (const CatalogueGroup& group : groups) {
            auto* item = new QStandardItem(PlainText(group.name, meLanguage));
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
            Fill(*item, group.groups);
            for (const std::string& orderNumber : group.orderNumbers) AddType(*item, orderNumber);
            if (item->rowCount() == 0) {
                delete item;
                continue;
            }
            auto* second = new QStandardItem;
            second->setFlags(item->flags());
            parent.appendRow({item, second});
        }
    }

private:
    void AddType(QStandardItem& parent, const std::string& orderNumber) const
    {
        const ModuleType* type = moCatalogue.Find(orderNumber);
        if (!type || type->isSubModule || !type->FitsStation(mlStationKind)) return;
        const QString number = ToQString(orderNumber);
        const QString name = PlainText(type->name, meLanguage);
        const QString description = ToQString(type->description, meLanguage);
        const QString searched = QStringLiteral("%1 %2 %3").arg(number, name, description).toLower();
        QList<QStandardItem*> row{new QStandardItem(name), new QStandardItem(PlainText(number))};
        for (QStandardItem* item : row) {
            item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
            item->setData(number, CatalogueModel::OrderNumberRole);
            item->setData(searched, CatalogueModel::SearchTextRole);
            item->setToolTip(ToolTipText(description));
        }
        parent.appendRow(row);
    }

    const Catalogue& moCatalogue;
    std::int32_t mlStationKind;
    Language meLanguage;
};

} // namespace

CatalogueModel::CatalogueModel(const Catalogue& catalogue, DragData dragData, QObject* parent)
    : QStandardItemModel(parent), moCatalogue(catalogue), moDragData(std::move(dragData))
{
}

void CatalogueModel::Fill(std::int32_t stationKind, Language language)
{
    clear();
    setHorizontalHeaderLabels({tr("Module"), tr("Order number")});
    TreeFiller(moCatalogue, stationKind, language).Fill(*invisibleRootItem(), moCatalogue.Groups());
}

QMimeData* CatalogueModel::mimeData(const QModelIndexList& indexes) const
{
    if (indexes.isEmpty()) return nullptr;
    const QString orderNumber = indexes.front().data(OrderNumberRole).toString();
    return orderNumber.isEmpty() ? nullptr : moDragData(orderNumber);
}

QStringList CatalogueModel::mimeTypes() const
{
    using namespace zqbchwcx;
    return {qt::ClipboardMimeType(qt::ClipboardFormatNumber(G_ConfigTextFormatName))};
}

} // namespace quillon_ed
