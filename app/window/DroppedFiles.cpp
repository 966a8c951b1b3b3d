#include "app/window/DroppedFiles.h"

#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace quillon_ed {

namespace {

/// Empty when the drag carries no local file.
QString FirstFileOf(const QMimeData& data)
{
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) return url.toLocalFile();
    }
    return {};
}

/// Sees the drags over all widgets of the window before they do.
class DropWatch : public QObject {
public:
    DropWatch(QWidget& window, std::function<void(const QString&)> open)
        : QObject(&window), moWindow(window), moOpen(std::move(open))
    {
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
        if (!isDrag && event->type() != QEvent::Drop) return false;
        const auto* widget = qobject_cast<QWidget*>(watched);
        if (!widget || widget->window() != &moWindow) return false;
        auto* drop = static_cast<QDropEvent*>(event);
        const QString file = FirstFileOf(*drop->mimeData());
        if (file.isEmpty()) return false;
        drop->setDropAction(Qt::CopyAction);
        drop->accept();
        // The program that the file comes from waits until the drop is over.
        if (!isDrag) QTimer::singleShot(0, this, [this, file] { Open(file); });
        return true;
    }

private:
    void Open(const QString& file)
    {
        moWindow.activateWindow();
        moOpen(file);
    }

    QWidget& moWindow;
    std::function<void(const QString&)> moOpen;
};

} // namespace

void OpenDroppedFiles(QWidget& window, std::function<void(const QString& file)> open)
{
    window.setAcceptDrops(true);
    qApp->installEventFilter(new DropWatch(window, std::move(open))); // owned by the window
}

} // namespace quillon_ed
