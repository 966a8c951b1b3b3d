#include "zqbchwcx/qt/QtWindowWatch.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/qt/RawPresses.h"
#include "zqbchwcx/qt/WindowHandle.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QMouseEvent>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace zqbchwcx::qt {
namespace {

/// 0 for a button that has no message.
std::int32_t DownMessage(Qt::MouseButton button, bool bClient)
{
    switch (button) {
    case Qt::LeftButton:
        return bClient ? vxMessageLeftDown : vxMessageNonClientLeftDown;
    case Qt::RightButton:
        return bClient ? vxMessageRightDown : vxMessageNonClientRightDown;
    case Qt::MiddleButton:
        return bClient ? vxMessageMiddleDown : vxMessageNonClientMiddleDown;
    default:
        return 0;
    }
}

/// The widget at that point of the window, as the views know it: what scrolls inside a window is that window.
const QWidget* WidgetIn(const QWindow& window, QPoint at)
{
    const auto tops = QApplication::topLevelWidgets();
    const auto found =
        std::find_if(tops.begin(), tops.end(), [&](const QWidget* top) { return top->windowHandle() == &window; });
    if (found == tops.end()) return nullptr;
    const QWidget* child = (*found)->childAt(at);
    if (child == nullptr) return *found;
    const auto* area = qobject_cast<const QAbstractScrollArea*>(child->parentWidget());
    return area != nullptr && area->viewport() == child ? area : child;
}

const QWidget* FramedWindowAt(QPoint onScreen)
{
    const auto windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows)
        if (window->isVisible() && window->frameGeometry().contains(onScreen)) return window;
    return nullptr;
}

} // namespace

QtWindowSpy::QtWindowSpy(std::intptr_t hWnd, WindowSpyHandler handler) : mHandler(std::move(handler))
{
    QWidget* window = WidgetOf(hWnd);
    if (window == nullptr) throw VxError(vxErrorNothing, "There is no window to watch");
    window->installEventFilter(this);
}

bool QtWindowSpy::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() != QEvent::FocusOut) return false;
    const QWidget* menu = QApplication::activePopupWidget();
    const auto handler = mHandler; // it may end this spy
    handler(vxMessageKillFocus, HandleOf(menu != nullptr ? menu : QApplication::focusWidget()));
    return false;
}

QtMouseHook::QtMouseHook(MouseHookHandler handler)
    : mHandler(std::move(handler)),
      mRawPresses(
          RawPresses::Watch([this](Qt::MouseButton button, QPoint onScreen) { PressedElsewhere(button, onScreen); }))
{
    qApp->installEventFilter(this);
}

QtMouseHook::~QtMouseHook() = default;

bool QtMouseHook::eventFilter(QObject* watched, QEvent* event)
{
    const auto* window = qobject_cast<const QWindow*>(watched);
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        // The window's event comes once, before those of the widgets in it.
        const auto& press = static_cast<const QMouseEvent&>(*event);
        if (window == nullptr) break;
        const QWidget* widget = WidgetIn(*window, press.position().toPoint());
        if (widget != nullptr) Report(DownMessage(press.button(), true), widget);
        break;
    }
    case QEvent::NonClientAreaMouseButtonPress:
        if (window == nullptr) break;
        Report(DownMessage(static_cast<const QMouseEvent&>(*event).button(), false), WidgetIn(*window, {}));
        break;
    case QEvent::ApplicationDeactivate:
        // Where presses on other programs are not told, this is what is seen of them.
        if (!mRawPresses) Report(vxMessageNonClientLeftDown, nullptr);
        break;
    default:
        break;
    }
    return false;
}

void QtMouseHook::PressedElsewhere(Qt::MouseButton button, QPoint onScreen)
{
    if (QApplication::widgetAt(onScreen) != nullptr) return; // told by its event
    Report(DownMessage(button, false), FramedWindowAt(onScreen));
}

void QtMouseHook::Report(std::int32_t lMessage, const QWidget* window)
{
    if (lMessage == 0) return;
    const auto handler = mHandler; // it may end this hook
    handler(lMessage, HandleOf(window));
}

} // namespace zqbchwcx::qt
