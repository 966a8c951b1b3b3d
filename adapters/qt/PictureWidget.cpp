#include "zqbchwcx/qt/PictureWidget.h"

#include "zqbchwcx/qt/DevicePainting.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace zqbchwcx::qt {

PictureWidget::PictureWidget(QWidget& parent, Qt::WindowFlags flags, const Rect& rect)
    : QWidget(&parent, flags), mPicture({rect.width(), rect.height()}, parent.devicePixelRatioF())
{
    setGeometry(rect.left, rect.top, rect.width(), rect.height());
    setAttribute(Qt::WA_OpaquePaintEvent);
    setContextMenuPolicy(Qt::PreventContextMenu);
    mPicture.OnChanged([this](const QRect& device) { Remember(device); });
}

void PictureWidget::Remember(const QRect& device)
{
    mChanged |= device;
    // One update for a burst of drawing: it is shown when the program next waits, or by an explicit refresh.
    if (std::exchange(mbShowPosted, true)) return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            mbShowPosted = false;
            ShowChanges();
        },
        Qt::QueuedConnection);
}

void PictureWidget::ShowChanges()
{
    if (mChanged.isEmpty()) return;
    const double ratio = mPicture.Ratio();
    const QRectF logical(mChanged.x() / ratio, mChanged.y() / ratio, mChanged.width() / ratio,
                         mChanged.height() / ratio);
    mChanged = {};
    update(logical.toAlignedRect());
}

void PictureWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    UseDevicePixels(painter, devicePixelRatioF());
    // Until it is drawn anew at a changed ratio, the picture is stretched.
    const double stretch = devicePixelRatioF() / mPicture.Ratio();
    painter.scale(stretch, stretch);
    painter.drawImage(0, 0, mPicture.Pixels());
}

void PictureWidget::resizeEvent(QResizeEvent* /*event*/)
{
    mPicture.Resize({width(), height()});
}

} // namespace zqbchwcx::qt
