#include "app/window/AfterFirstPaint.h"

#include <QEvent>
#include <QTimer>
#include <QWidget>

namespace quillon_ed {

namespace {

constexpr int AtTheLatestMilliseconds = 1000;

class FirstPaintWatch : public QObject {
public:
    FirstPaintWatch(QWidget& window, std::function<void()> then) : QObject(&window), moThen(std::move(then))
    {
        window.installEventFilter(this);
        connect(&moTimer, &QTimer::timeout, this, [this] {
            deleteLater();
            moTimer.stop();
            moThen();
        });
        moTimer.start(AtTheLatestMilliseconds);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Paint) {
            watched->removeEventFilter(this);
            // What is painted shows when the event is over.
            moTimer.start(0);
        }
        return false;
    }

private:
    QTimer moTimer;
    std::function<void()> moThen;
};

} // namespace

void AfterFirstPaint(QWidget& window, std::function<void()> then)
{
    new FirstPaintWatch(window, std::move(then)); // owned by the window
}

} // namespace quillon_ed
