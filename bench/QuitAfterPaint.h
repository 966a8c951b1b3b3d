#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace quillon_ed::bench {

/// Ends the program when a widget has been painted, and says so on standard output.
class QuitAfterPaint : public QObject {
public:
    /// The widget, or for the application every window.
    void Watch(QObject& watched) { watched.installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Paint || !watched->isWidgetType()) return false;
        // When the event is over, all of the window has been painted.
        QTimer::singleShot(0, [] {
            std::puts("painted");
            std::fflush(stdout);
            std::_Exit(0);
        });
        return false;
    }
};

} // namespace quillon_ed::bench
