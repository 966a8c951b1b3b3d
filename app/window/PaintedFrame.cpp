#include "app/window/PaintedFrame.h"

#include "app/host/ScreenRoom.h"
#include "app/window/AfterFirstPaint.h"

#include <QCloseEvent>
#include <QEventLoop>

#include <memory>

namespace quillon_ed {

namespace {

constexpr QSize ComfortableSize(1180, 720);

} // namespace

PaintedFrame::PaintedFrame(const QByteArray& geometry)
{
    resize(WithinScreen(*this, ComfortableSize));
    restoreGeometry(geometry);
    show();
    // Shared, because the application may end the loop before the window is painted.
    const auto loop = std::make_shared<QEventLoop>();
    AfterFirstPaint(*this, [loop] { loop->quit(); });
    // Nobody can answer a click or a key yet.
    loop->exec(QEventLoop::ExcludeUserInputEvents);
}

void PaintedFrame::closeEvent(QCloseEvent* event)
{
    event->ignore();
}

} // namespace quillon_ed
