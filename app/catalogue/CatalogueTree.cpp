#include "app/catalogue/CatalogueTree.h"

#include "app/catalogue/CatalogueModel.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMimeData>

namespace quillon_ed {

namespace {

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
}

QString CatalogueTree::CurrentOrderNumber() const
{
    return OrderNumberAt(currentIndex());
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
