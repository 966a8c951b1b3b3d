#include "app/host/ScreenRoom.h"

#include <QScreen>
#include <QWidget>

namespace quillon_ed {

namespace {

constexpr QSize FrameRoom(16, 48); ///< for what the window manager puts around a window

} // namespace

QSize WithinScreen(const QWidget& window, QSize size)
{
    return size.boundedTo(window.screen()->availableSize() - FrameRoom);
}

QSize TextSize(const QWidget& widget, int characters, int lines)
{
    const QFontMetrics metrics = widget.fontMetrics();
    return {characters * metrics.averageCharWidth(), lines * metrics.lineSpacing()};
}

} // namespace quillon_ed
