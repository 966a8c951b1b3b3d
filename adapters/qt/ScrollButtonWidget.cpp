#include "zqbchwcx/qt/ScrollButtonWidget.h"

#include "zqbchwcx/qt/InputTranslation.h"
#include "zqbchwcx/qt/SystemColors.h"

#include <QDropEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionButton>

#include <utility>

namespace zqbchwcx::qt {
namespace {

constexpr int FaceInset = 2; // the frame below shows around the face

} // namespace

ScrollButtonWidget::ScrollButtonWidget(QWidget& parent, const QString& name, const Rect& rect, ButtonArrow eArrow)
    : QWidget(&parent), meArrow(eArrow), mArrowColor(vxColorButtonText)
{
    setObjectName(name);
    setGeometry(rect.left, rect.top, rect.width(), rect.height());
    setFocusPolicy(Qt::NoFocus);
    setAcceptDrops(true);
}

void ScrollButtonWidget::Pressed(bool bPressed)
{
    if (std::exchange(mbPressed, bPressed) != bPressed) update();
}

void ScrollButtonWidget::ArrowColor(OleColor color)
{
    if (std::exchange(mArrowColor, color) != color) update();
}

void ScrollButtonWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QStyleOptionButton option;
    option.initFrom(this);
    option.rect = rect().adjusted(FaceInset, FaceInset, -FaceInset, -FaceInset);
    option.state.setFlag(QStyle::State_Sunken, mbPressed);
    option.state.setFlag(QStyle::State_Raised, !mbPressed);
    style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
    PaintArrow(painter, option.rect);
}

void ScrollButtonWidget::PaintArrow(QPainter& painter, const QRectF& face) const
{
    constexpr double HalfWidth = 6;
    constexpr double HalfHeight = 1.75;
    const double tip = meArrow == ButtonArrow::Up ? -HalfHeight : HalfHeight;
    const QPointF middle = face.center();
    const QPointF points[] = {middle + QPointF(-HalfWidth, -tip), middle + QPointF(0, tip),
                              middle + QPointF(HalfWidth, -tip)};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ReadableOn(mArrowColor, palette().color(QPalette::Button)), 1.5, Qt::SolidLine, Qt::RoundCap,
                        Qt::RoundJoin));
    painter.drawPolyline(points, 3);
}

void ScrollButtonWidget::mousePressEvent(QMouseEvent* event)
{
    if (mReceiver != nullptr) mReceiver->MouseDown(ToButtons(event->button()));
}

void ScrollButtonWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (mReceiver != nullptr) mReceiver->MouseUp(ToButtons(event->button()));
}

void ScrollButtonWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event);
}

DropTarget::Handler ScrollButtonWidget::DragOverHandler()
{
    return [this](DragOverEvent& over) {
        if (mReceiver != nullptr)
            mReceiver->OLEDragOver(over.data, over.lEffect, over.nButton, over.nShift, over.nState);
    };
}

void ScrollButtonWidget::dragEnterEvent(QDragEnterEvent* event)
{
    mDropTarget.Enter(*event, DragOverHandler());
}

void ScrollButtonWidget::dragMoveEvent(QDragMoveEvent* event)
{
    mDropTarget.Move(*event, DragOverHandler());
}

void ScrollButtonWidget::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    mDropTarget.Leave(DragOverHandler());
}

void ScrollButtonWidget::dropEvent(QDropEvent* event)
{
    mDropTarget.Refuse(*event, DragOverHandler());
}

} // namespace zqbchwcx::qt
