#include "app/catalogue/CatalogueTree.h"

#include "app/catalogue/CatalogueModel.h"

#include <QDrag>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMimeData>

namespace quillon_ed {

namespace {

constexpr int Indentation = 14;

QString OrderNumberAt(const QModelIndex& index)
{
    return index.data(CatalogueModel::OrderNumberRole).toString();
}

} // namespace

CatalogueTree::CatalogueTree(DragPicture dragPicture, QWidget* parent)
    : QTreeView(parent), moDragPicture(std::move(dragPicture))
{
    setDragEnabled(true);
    setDragDropMode(QAbstractItemView::DragOnly);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setExpandsOnDoubleClick(true);
    setTextElideMode(Qt::ElideMiddle);
    setIndentation(Indentation);
    header()->setStretchLastSection(false);
}

QString CatalogueTree::CurrentOrderNumber() const
{
    return OrderNumberAt(currentIndex());
}

void CatalogueTree::ShowAll()
{
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    expandAll();
    for (QModelIndex row = model()->index(0, 0); row.isValid(); row = indexBelow(row)) {
        setFirstColumnSpanned(row.row(), row.parent(), OrderNumberAt(row).isEmpty());
    }
    ShowOrderNumbersIfWhole();
}

void CatalogueTree::ShowOrderNumbersIfWhole()
{
    setColumnHidden(1, sizeHintForColumn(0) + sizeHintForColumn(1) > viewport()->width());
}

void CatalogueTree::resizeEvent(QResizeEvent* event)
{
    QTreeView::resizeEvent(event);
    ShowOrderNumbersIfWhole();
}

void CatalogueTree::startDrag(Qt::DropActions)
{
    const QString orderNumber = CurrentOrderNumber();
    QMimeData* mime = orderNumber.isEmpty() ? nullptr : model()->mimeData({currentIndex()});
    if (!mime) return;
    auto* drag = new QDrag(this);
    drag->setMimeData(mime);
    const QPixmap picture = moDragPicture(orderNumber);
    if (!picture.isNull()) {
        drag->setPixmap(picture);
        drag->setHotSpot(QPoint(9, 9));
    }
    drag->exec(Qt::CopyAction, Qt::CopyAction);
}

void CatalogueTree::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const QString orderNumber = CurrentOrderNumber();
    if (enter && !orderNumber.isEmpty()) emit chosen(orderNumber);
    else QTreeView::keyPressEvent(event);
}

void CatalogueTree::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QString orderNumber = OrderNumberAt(indexAt(event->pos()));
    if (event->button() == Qt::LeftButton && !orderNumber.isEmpty()) emit chosen(orderNumber);
    else QTreeView::mouseDoubleClickEvent(event);
}

} // namespace quillon_ed
