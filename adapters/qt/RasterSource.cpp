#include "zqbchwcx/qt/RasterSource.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace zqbchwcx::qt {

void RasterSource::Paint(QPainter& painter, const QRectF& target) const
{
    painter.drawImage(target, mImage);
}

QImage RasterSource::Render(const QRectF& part, QSize deviceSize) const
{
    const double pixelsPerLogical = static_cast<double>(mImage.width()) / mSize.width;
    const QRect source = QRectF(part.topLeft() * pixelsPerLogical, part.size() * pixelsPerLogical).toAlignedRect();
    // Pixels are blown up to whole device pixels first, so that only the fraction that is left over is smoothed.
    const double factor = std::max(1.0, std::ceil(static_cast<double>(deviceSize.width()) / source.width()));
    return mImage.copy(source)
        .scaled((QSizeF(source.size()) * factor).toSize(), Qt::IgnoreAspectRatio, Qt::FastTransformation)
        .scaled(deviceSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace zqbchwcx::qt
