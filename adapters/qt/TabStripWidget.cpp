#include "zqbchwcx/qt/TabStripWidget.h"

#include "zqbchwcx/qt/GridColors.h"

#include <QDragEnterEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPolygon>
#include <QSignalBlocker>
#include <QWheelEvent>

namespace zqbchwcx::qt {
namespace {

/// So short that it feels like none, so long that passing over a tab is not meant.
constexpr int HoverRest = 120;
constexpr int DragRest = 400;

constexpr int DarkestOutlined = 16;
constexpr int UnselectedTop = 2;
constexpr double OutlineShare = 0.5;

} // namespace

TabStripWidget::TabStripWidget(QWidget& parent, const QString& name, int tabs) : QTabBar(&parent)
{
    setObjectName(name);
    setDrawBase(true);
    setExpanding(false);
    setMouseTracking(true);
    setAcceptDrops(true);
    setContextMenuPolicy(Qt::PreventContextMenu);
    for (int tab = 0; tab < tabs; ++tab) addTab(QString());
    mRest.setSingleShot(true);
    mRest.setTimerType(Qt::PreciseTimer);
    connect(&mRest, &QTimer::timeout, this, [this] {
        if (mReceiver == nullptr || !isTabEnabled(mTab)) return;
        if (mbDrag) mReceiver->TabDragHover(mTab);
        else mReceiver->TabHover(mTab);
    });
    connect(this, &QTabBar::currentChanged, this, [this](int tab) {
        if (mReceiver != nullptr && tab >= 0) mReceiver->TabClick(tab);
    });
}

void TabStripWidget::SelectQuietly(int tab)
{
    const QSignalBlocker quiet(this);
    setCurrentIndex(tab);
}

void TabStripWidget::EnableQuietly(int tab, bool bEnabled)
{
    const QSignalBlocker quiet(this);
    const int selected = currentIndex();
    setTabEnabled(tab, bEnabled);
    setCurrentIndex(selected);
}

QSize TabStripWidget::tabSizeHint(int index) const
{
    return {QTabBar::tabSizeHint(index).width(), TabHeight};
}

QSize TabStripWidget::minimumTabSizeHint(int index) const
{
    return {QTabBar::minimumTabSizeHint(index).width(), TabHeight};
}

void TabStripWidget::MoveTo(QPoint at, bool bDrag)
{
    const int tab = tabAt(at);
    const bool bAnother = tab != mTab || bDrag != mbDrag;
    mTab = tab;
    mbDrag = bDrag;
    if (tab < 0) mRest.stop();
    // Once told, a tab is not told again before it was left.
    else if (bAnother || (mRest.isActive() && at != mAt)) mRest.start(bDrag ? DragRest : HoverRest);
    mAt = at;
}

void TabStripWidget::Leave()
{
    mRest.stop();
    mTab = -1;
}

void TabStripWidget::mouseMoveEvent(QMouseEvent* event)
{
    QTabBar::mouseMoveEvent(event);
    if (event->buttons() != Qt::NoButton || !isActiveWindow()) return Leave();
    MoveTo(event->position().toPoint(), false);
}

void TabStripWidget::mousePressEvent(QMouseEvent* event)
{
    Leave();
    QTabBar::mousePressEvent(event);
}

void TabStripWidget::leaveEvent(QEvent* event)
{
    Leave();
    QTabBar::leaveEvent(event);
}

void TabStripWidget::paintEvent(QPaintEvent* event)
{
    QTabBar::paintEvent(event);
    // The style's outlines are darker than the window: on black they cannot be seen.
    const QColor window = palette().color(QPalette::Window);
    if (window.lightness() > DarkestOutlined) return;
    QPainter painter(this);
    painter.setPen(Mixed(window, palette().color(QPalette::WindowText), OutlineShare));
    const int base = height() - 1;
    for (int tab = 0; tab < count(); ++tab) {
        const bool bSelected = tab == currentIndex();
        const QRect rect = tabRect(tab);
        const int top = bSelected ? 0 : UnselectedTop;
        painter.drawPolyline(
            QPolygon{{rect.left(), base}, {rect.left(), top}, {rect.right(), top}, {rect.right(), base}});
        if (!bSelected) painter.drawLine(rect.left(), base, rect.right(), base);
    }
    painter.drawLine(tabRect(count() - 1).right(), base, width(), base);
}

void TabStripWidget::wheelEvent(QWheelEvent* event)
{
    // Turned by accident, it would change the rack.
    event->ignore();
}

void TabStripWidget::dragEnterEvent(QDragEnterEvent* event)
{
    // Nothing is dropped here; but a window that refuses a drag does not hear where it goes.
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
}

void TabStripWidget::dragMoveEvent(QDragMoveEvent* event)
{
    MoveTo(event->position().toPoint(), true);
    event->setDropAction(Qt::IgnoreAction);
    event->ignore();
}

void TabStripWidget::dragLeaveEvent(QDragLeaveEvent* /*event*/)
{
    Leave();
}

} // namespace zqbchwcx::qt
