#include "zqbchwcx/qt/ControlWidget.h"

#include "zqbchwcx/qt/GridWidget.h"
#include "zqbchwcx/qt/InputTranslation.h"
#include "zqbchwcx/qt/PictureBoxWidget.h"
#include "zqbchwcx/qt/ScrollButtonWidget.h"
#include "zqbchwcx/qt/ShapeWidget.h"
#include "zqbchwcx/qt/SystemColors.h"
#include "zqbchwcx/qt/TabStripWidget.h"
#include "zqbchwcx/qt/UiFont.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPalette>
#include <QResizeEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

namespace zqbchwcx::qt {
namespace {

constexpr double SmallestScale = 0.5;
constexpr double LargestScale = 8;

/// Keys that the views use themselves, whatever the shortcuts and the focus order of the window they are put in.
bool IsOwnKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Down:
        return !event.modifiers().testFlag(Qt::AltModifier);
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Delete:
    case Qt::Key_Clear:
        return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    case Qt::Key_Menu:
        return true;
    case Qt::Key_F10:
        return event.modifiers().testFlag(Qt::ShiftModifier);
    default:
        return false;
    }
}

/// Windows that draw themselves on whatever they are shown.
bool DrawsItself(const QWidget& widget)
{
    return qobject_cast<const GridWidget*>(&widget) != nullptr ||
           qobject_cast<const TabStripWidget*>(&widget) != nullptr ||
           qobject_cast<const ScrollButtonWidget*>(&widget) != nullptr ||
           qobject_cast<const QScrollBar*>(&widget) != nullptr;
}

/// The picture box that lies lowest in the control or in a control in it.
PictureBoxWidget* LowestPictureBox(const QWidget& control)
{
    const auto& children = control.children();
    for (QObject* child : children) {
        if (auto* box = qobject_cast<PictureBoxWidget*>(child)) return box;
        const auto* inner = qobject_cast<const ControlWidget*>(child);
        auto* box = inner != nullptr ? LowestPictureBox(*inner) : nullptr;
        if (box != nullptr) return box;
    }
    return nullptr;
}

/// Draws the visible child windows, lowest first, with the origin at the control's corner. `offset` is the control's
/// own corner in the picture, in logical pixels.
void PaintWindows(QPainter& painter, const PixelGrid& grid, const QWidget& control, QPoint offset)
{
    const auto& children = control.children();
    for (QObject* child : children) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget == nullptr || widget->isHidden()) continue;
        const QPoint corner = offset + widget->pos();
        if (auto* box = qobject_cast<PictureBoxWidget*>(widget)) {
            painter.drawImage(grid.Edge(corner.x()), grid.Edge(corner.y()), box->Picture().Pixels());
        } else if (const auto* shape = qobject_cast<const ShapeWidget*>(widget)) {
            shape->Paint(painter, grid.Device(MakeRect(corner.x(), corner.y(), shape->width(), shape->height())),
                         grid.Ratio());
        } else if (DrawsItself(*widget)) {
            painter.save();
            painter.scale(grid.Ratio(), grid.Ratio());
            widget->render(&painter, corner);
            painter.restore();
        } else if (!widget->isWindow()) {
            // A control shows of its children what lies in it.
            painter.save();
            painter.setClipRect(grid.Device(MakeRect(corner.x(), corner.y(), widget->width(), widget->height())),
                                Qt::IntersectClip);
            PaintWindows(painter, grid, *widget, corner);
            painter.restore();
        }
    }
}

} // namespace

ControlWidget::ControlWidget(QWidget* parent, Backdrop backdrop)
    : QWidget(parent), mBackdrop(backdrop), mFont(DefaultUiFont()), mRatio(devicePixelRatioF())
{
    setContextMenuPolicy(Qt::PreventContextMenu);
    Receiver(nullptr);
}

void ControlWidget::Receiver(UserControlEvents* receiver)
{
    mReceiver = receiver;
    setAttribute(Qt::WA_TransparentForMouseEvents, receiver == nullptr && !mbHoldsInput);
    setAcceptDrops(receiver != nullptr);
}

void ControlWidget::HoldsInput()
{
    mbHoldsInput = true;
    Receiver(mReceiver);
}

void ControlWidget::TextFont(const QFont& font)
{
    mFont = font;
    for (auto* box : findChildren<PictureBoxWidget*>(QString(), Qt::FindDirectChildrenOnly)) box->Picture().Font(font);
    for (auto* grid : findChildren<GridWidget*>(QString(), Qt::FindDirectChildrenOnly)) grid->TextFont(font);
    for (auto* tabs : findChildren<TabStripWidget*>(QString(), Qt::FindDirectChildrenOnly)) tabs->setFont(font);
}

void ControlWidget::ResizeNow(QSize size)
{
    const QSize previous = this->size();
    if (size == previous) return;
    resize(size);
    if (!testAttribute(Qt::WA_PendingResizeEvent)) return;
    setAttribute(Qt::WA_PendingResizeEvent, false);
    QResizeEvent event(size, previous);
    resizeEvent(&event);
}

QColor ControlWidget::BackgroundColor() const
{
    auto* box = LowestPictureBox(*this);
    return box != nullptr ? box->Picture().Background() : ToQColor(vxColorWindowBackground).value_or(Qt::white);
}

QImage ControlWidget::ToImage() const
{
    const PixelGrid grid(mRatio);
    QImage image(grid.Edge(width()), grid.Edge(height()), QImage::Format_RGB32);
    image.fill(BackgroundColor());
    QPainter painter(&image);
    PaintWindows(painter, grid, *this, {});
    return image;
}

QImage ControlWidget::ToImage(QSize size, double scale)
{
    // A widget that was never shown has not been told of its size.
    ResizeNow(size);
    OverrideRatio(std::clamp(scale, SmallestScale, LargestScale));
    QImage image = ToImage();
    OverrideRatio(0);
    return image;
}

void ControlWidget::OverrideRatio(double ratio)
{
    mbRatioOverridden = ratio > 0;
    SetRatio(mbRatioOverridden ? ratio : devicePixelRatioF());
}

void ControlWidget::FollowRatio()
{
    if (!mbRatioOverridden) SetRatio(devicePixelRatioF());
}

void ControlWidget::SetRatio(double ratio)
{
    if (ratio == mRatio) return;
    mRatio = ratio;
    for (auto* control : findChildren<ControlWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        control->mbRatioOverridden = mbRatioOverridden;
        control->SetRatio(ratio);
    }
    for (auto* box : findChildren<PictureBoxWidget*>(QString(), Qt::FindDirectChildrenOnly))
        box->Picture().Ratio(ratio);
    emit AppearanceChanged();
}

bool ControlWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && IsOwnKey(static_cast<const QKeyEvent&>(*event))) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void ControlWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        emit AppearanceChanged();
        update();
    }
    if (event->type() == QEvent::StyleChange) emit MetricsChanged();
}

void ControlWidget::paintEvent(QPaintEvent* /*event*/)
{
    // A window may come to another screen without further notice; what it shows then is drawn anew after this.
    if (!mbRatioOverridden && devicePixelRatioF() != mRatio)
        QMetaObject::invokeMethod(this, &ControlWidget::FollowRatio, Qt::QueuedConnection);
    if (mBackdrop == Backdrop::Own) QPainter(this).fillRect(rect(), BackgroundColor());
}

void ControlWidget::resizeEvent(QResizeEvent* /*event*/)
{
    if (mReceiver != nullptr) mReceiver->Resize();
}

void ControlWidget::showEvent(QShowEvent* /*event*/)
{
    FollowRatio();
}

void ControlWidget::wheelEvent(QWheelEvent* event)
{
    constexpr float Notch = 120;
    const auto notches = static_cast<float>(event->angleDelta().y()) / Notch;
    event->setAccepted(mReceiver != nullptr && mReceiver->MouseWheel(notches));
}

void ControlWidget::keyPressEvent(QKeyEvent* event)
{
    if (mReceiver == nullptr) return event->ignore();
    const std::int16_t nKeyCode = ToKeyCode(event->key());
    if (nKeyCode != 0) mReceiver->KeyDown(nKeyCode, ToShift(event->modifiers()));
    event->setAccepted(IsOwnKey(*event));
}

void ControlWidget::keyReleaseEvent(QKeyEvent* event)
{
    if (mReceiver == nullptr) return event->ignore();
    const std::int16_t nKeyCode = ToKeyCode(event->key());
    if (nKeyCode != 0 && !event->isAutoRepeat()) mReceiver->KeyUp(nKeyCode, ToShift(event->modifiers()));
    event->setAccepted(IsOwnKey(*event));
}

DropTarget::Handler ControlWidget::DragOverHandler()
{
    return [this](DragOverEvent& over) {
        if (mReceiver == nullptr) return;
        mReceiver->OLEDragOver(over.data, over.lEffect, over.nButton, over.nShift, over.x, over.y, over.nState);
    };
}

void ControlWidget::dragEnterEvent(QDragEnterEvent* event)
{
    mDropTarget.Enter(*event, DragOverHandler());
}

void ControlWidget::dragMoveEvent(QDragMoveEvent* event)
{
    mDropTarget.Move(*event, DragOverHandler());
}

void ControlWidget::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    mDropTarget.Leave(DragOverHandler());
}

void ControlWidget::dropEvent(QDropEvent* event)
{
    // Nothing is dropped between the picture boxes.
    mDropTarget.Refuse(*event, DragOverHandler());
}

} // namespace zqbchwcx::qt
