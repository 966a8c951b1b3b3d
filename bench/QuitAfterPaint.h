#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace quillon_ed::bench {

/// Ends the program once the window has been painted.
class QuitAfterPaint : public QObject {
public:
    explicit QuitAfterPaint(QWidget& window) { window.installEventFilter(this); }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        return false;
    }
};

} // namespace quillon_ed::bench
