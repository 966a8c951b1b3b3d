#include "zqbchwcx/qt/DevicePainting.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace zqbchwcx::qt {

void UseDevicePixels(QPainter& painter, double ratio)
{
    const QPointF origin = painter.deviceTransform().map(QPointF(0, 0));
    const QPointF snapped(std::floor(origin.x() + 0.5), std::floor(origin.y() + 0.5));
    painter.translate((snapped - origin) / ratio);
    painter.scale(1 / ratio, 1 / ratio);
}

double DeviceRatio(const QPainter& painter)
{
    return painter.deviceTransform().m11();
}

int ThinLine(double ratio)
{
    return std::max(static_cast<int>(ratio), 1);
}

} // namespace zqbchwcx::qt
