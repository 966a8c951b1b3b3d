#include "zqbchwcx/qt/PictureBoxWidget.h"

#include "zqbchwcx/qt/DevicePainting.h"
#include "zqbchwcx/qt/InputTranslation.h"
#include "zqbchwcx/qt/SourceDataObject.h"

#include <QDrag>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPixmap>
#include <QPointer>

#include <utility>

namespace zqbchwcx::qt {

PictureBoxWidget::PictureBoxWidget(QWidget& parent, const QString& name, const Rect& rect)
    : QWidget(&parent), mPicture({rect.width(), rect.height()}, parent.devicePixelRatioF())
{
    setObjectName(name);
    setGeometry(rect.left, rect.top, rect.width(), rect.height());
    setAttribute(Qt::WA_OpaquePaintEvent);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setMouseTracking(true);
    mPicture.OnChanged([this](const QRect& device) { Remember(device); });
    Receiver(nullptr);
}

void PictureBoxWidget::Receiver(PictureBoxEvents* receiver)
{
    mReceiver = receiver;
    setAttribute(Qt::WA_TransparentForMouseEvents, receiver == nullptr);
    setAcceptDrops(receiver != nullptr);
    setFocusPolicy(receiver == nullptr ? Qt::NoFocus : Qt::StrongFocus);
}

void PictureBoxWidget::Remember(const QRect& device)
{
    mChanged |= device;
    // One update for a burst of drawing: it is shown when the program next waits, or by an explicit refresh.
    if (std::exchange(mbShowPosted, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            mbShowPosted = false;
            ShowChanges();
        },
        Qt::QueuedConnection);
}

void PictureBoxWidget::ShowChanges()
{
    if (mChanged.isEmpty()) return;
    const double ratio = mPicture.Ratio();
    const QRectF logical(mChanged.x() / ratio, mChanged.y() / ratio, mChanged.width() / ratio,
                         mChanged.height() / ratio);
    mChanged = {};
    update(logical.toAlignedRect());
}

void PictureBoxWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    UseDevicePixels(painter, devicePixelRatioF());
    // Until it is drawn anew at a changed ratio, the picture is stretched.
    const double stretch = devicePixelRatioF() / mPicture.Ratio();
    painter.scale(stretch, stretch);
    painter.drawImage(0, 0, mPicture.Pixels());
}

void PictureBoxWidget::resizeEvent(QResizeEvent* /*event*/)
{
    mPicture.Resize({width(), height()});
}

void PictureBoxWidget::Tell(MouseHandler handler, Qt::MouseButtons buttons, const QMouseEvent& event)
{
    if (mReceiver == nullptr) return;
    const QPointF at = ToPixel(event.position());
    (mReceiver->*handler)(ToButtons(buttons), ToShift(event.modifiers()), static_cast<float>(at.x()),
                          static_cast<float>(at.y()));
}

void PictureBoxWidget::mousePressEvent(QMouseEvent* event)
{
    setFocus(Qt::MouseFocusReason);
    Tell(&PictureBoxEvents::MouseDown, event->button(), *event);
}

void PictureBoxWidget::mouseMoveEvent(QMouseEvent* event)
{
    Tell(&PictureBoxEvents::MouseMove, event->buttons(), *event);
}

void PictureBoxWidget::mouseReleaseEvent(QMouseEvent* event)
{
    Tell(&PictureBoxEvents::MouseUp, event->button(), *event);
}

void PictureBoxWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) Tell(&PictureBoxEvents::MouseDown, event->button(), *event);
    else if (mReceiver != nullptr) mReceiver->DblClick();
}

void PictureBoxWidget::focusInEvent(QFocusEvent* event)
{
    if (mReceiver != nullptr && event->reason() != Qt::PopupFocusReason) mReceiver->GotFocus();
}

void PictureBoxWidget::focusOutEvent(QFocusEvent* event)
{
    if (mReceiver != nullptr && event->reason() != Qt::PopupFocusReason) mReceiver->LostFocus();
}

DropTarget::Handler PictureBoxWidget::DragOverHandler()
{
    return [this](DragOverEvent& over) {
        if (mReceiver == nullptr) return;
        mReceiver->OLEDragOver(over.data, over.lEffect, over.nButton, over.nShift, over.x, over.y, over.nState);
    };
}

void PictureBoxWidget::dragEnterEvent(QDragEnterEvent* event)
{
    mDropTarget.Enter(*event, DragOverHandler());
}

void PictureBoxWidget::dragMoveEvent(QDragMoveEvent* event)
{
    mDropTarget.Move(*event, DragOverHandler());
}

void PictureBoxWidget::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    mDropTarget.Leave(DragOverHandler());
}

void PictureBoxWidget::dropEvent(QDropEvent* event)
{
    mDropTarget.Drop(*event, [this](DragOverEvent& drop) {
        if (mReceiver == nullptr) return;
        mReceiver->OLEDragDrop(drop.data, drop.lEffect, drop.nButton, drop.nShift, drop.x, drop.y);
    });
}

void PictureBoxWidget::Drag()
{
    if (mReceiver == nullptr) return;
    auto offered = std::make_shared<SourceDataObject>();
    // The desktop may ask for announced data as long as it keeps the drag's data, even after this window.
    offered->OnWanted([self = QPointer(this), weakData = std::weak_ptr(offered)](std::int16_t nFormat) {
        if (self && self->mReceiver != nullptr) self->mReceiver->OLESetData(weakData.lock(), nFormat);
    });

    std::int32_t lAllowed = vxDropEffectNone;
    mReceiver->OLEStartDrag(offered, lAllowed);

    std::int32_t lEffect = vxDropEffectNone;
    const QPointer self(this);
    if (lAllowed != vxDropEffectNone && !offered->MimeTypes().isEmpty()) {
        auto* drag = new QDrag(this); // the desktop deletes it when the drag is over
        drag->setMimeData(new SourceMimeData(offered));
        // The views draw what is dragged themselves.
        QPixmap nothing(1, 1);
        nothing.fill(Qt::transparent);
        drag->setPixmap(nothing);
        lEffect = ToEffects(drag->exec(ToActions(lAllowed), Qt::CopyAction));
    }
    if (self && mReceiver != nullptr) mReceiver->OLECompleteDrag(lEffect);
}

} // namespace zqbchwcx::qt
