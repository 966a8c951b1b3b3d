#include "zqbchwcx/qt/ShapeWidget.h"

#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/DevicePainting.h"
#include "zqbchwcx/qt/SystemColors.h"

#include <QPainter>
#include <QPolygonF>

#include <utility>

namespace zqbchwcx::qt {

ShapeWidget::ShapeWidget(QWidget& parent, const QString& name, const Rect& rect, OleColor color)
    : QWidget(&parent), mColor(color)
{
    setObjectName(name);
    setGeometry(rect.left, rect.top, rect.width(), rect.height());
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

QColor ShapeWidget::FillColor() const
{
    const QWidget* control = parentWidget();
    while (control != nullptr && qobject_cast<const ControlWidget*>(control->parentWidget()) != nullptr)
        control = control->parentWidget();
    const auto* outermost = qobject_cast<const ControlWidget*>(control);
    // Not a mark: what a button lies in.
    if (mColor == vxColorButtonFace) return palette().color(QPalette::Button);
    return ReadableOn(mColor, outermost != nullptr ? outermost->BackgroundColor() : palette().color(QPalette::Base));
}

void ShapeWidget::Color(OleColor color)
{
    if (std::exchange(mColor, color) != color) update();
}

void ShapeWidget::Slope(int rightHeight)
{
    mRightHeight = rightHeight;
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void ShapeWidget::Paint(QPainter& painter, const QRect& area, double ratio) const
{
    if (!mRightHeight || ratio <= 1) return painter.fillRect(area, FillColor());
    const QRectF box(area);
    const double middle = box.center().y();
    const double half = *mRightHeight * ratio / 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(FillColor());
    painter.drawPolygon(
        QPolygonF{box.topLeft(), {box.right(), middle - half}, {box.right(), middle + half}, box.bottomLeft()});
    painter.restore();
}

void ShapeWidget::paintEvent(QPaintEvent* /*event*/)
{
    const PixelGrid grid(devicePixelRatioF());
    const QPoint corner = mapTo(window(), QPoint());
    const QSize device = grid.Device(MakeRect(corner.x(), corner.y(), width(), height())).size();
    QPainter painter(this);
    UseDevicePixels(painter, grid.Ratio());
    Paint(painter, QRect({}, device), grid.Ratio());
}

} // namespace zqbchwcx::qt
