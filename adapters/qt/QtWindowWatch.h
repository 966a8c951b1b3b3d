#pragma once

#include "zqbchwcx/platform/WindowWatch.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>

namespace zqbchwcx::qt {

/// Reports when the window loses the keyboard focus.
class QtWindowSpy : public QObject, public WindowSpy {
    Q_OBJECT
public:
    /// Throws VxError without a window.
    QtWindowSpy(std::intptr_t hWnd, WindowSpyHandler handler);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    WindowSpyHandler mHandler;
};

class RawPresses;

/// Reports every press of a mouse button: one on a window of this program before the window gets it, and, as far as the
/// desktop tells, those on title bars and on other programs.
class QtMouseHook : public QObject, public MouseHook {
    Q_OBJECT
public:
    explicit QtMouseHook(MouseHookHandler handler);
    ~QtMouseHook() override;
    QtMouseHook(const QtMouseHook&) = delete;
    QtMouseHook& operator=(const QtMouseHook&) = delete;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void PressedElsewhere(Qt::MouseButton button, QPoint onScreen);
    void Report(std::int32_t lMessage, const QWidget* window);

    MouseHookHandler mHandler;
    std::unique_ptr<RawPresses> mRawPresses; ///< null where the desktop does not tell of them
};

} // namespace zqbchwcx::qt
