#include "zqbchwcx/qt/PictureBoxWidget.h"

#include "zqbchwcx/qt/DragSource.h"
#include "zqbchwcx/qt/InputTranslation.h"

#include <QMouseEvent>

namespace zqbchwcx::qt {

PictureBoxWidget::PictureBoxWidget(QWidget& parent, const QString& name, const Rect& rect)
    : PictureWidget(parent, {}, rect)
{
    setObjectName(name);
    setMouseTracking(true);
    Receiver(nullptr);
}

void PictureBoxWidget::Receiver(PictureBoxEvents* receiver)
{
    mReceiver = receiver;
    setAttribute(Qt::WA_TransparentForMouseEvents, receiver == nullptr);
    setAcceptDrops(receiver != nullptr);
    setFocusPolicy(receiver == nullptr ? Qt::NoFocus : Qt::StrongFocus);
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
    RunDrag(*this);
}

} // namespace zqbchwcx::qt
