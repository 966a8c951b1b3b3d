#pragma once

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace quillon_ed::bench {

/// Ends the program once the watched widget has been painted.
class QuitAfterPaint : public QObject {
public:
    void Watch(QWidget& widget) { widget.installEventFilter(this); }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        // The loop ends when it has painted all of the window.
        if (event->type() == QEvent::Paint) QCoreApplication::exit();
        return false;
    }
};

} // namespace quillon_ed::bench
