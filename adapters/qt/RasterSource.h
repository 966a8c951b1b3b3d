#pragma once

#include "zqbchwcx/qt/ImageSource.h"

#include <utility>

namespace zqbchwcx::qt {

/// A picture of pixels; one of its pixels is a logical pixel, or a whole fraction of one.
class RasterSource : public ImageSource {
public:
    RasterSource(QImage image, Size size) : mImage(std::move(image)), mSize(size) {}

    Size LogicalSize() const override { return mSize; }
    void Paint(QPainter& painter, const QRectF& target) const override;
    QImage Render(const QRectF& part, QSize deviceSize) const override;

private:
    QImage mImage;
    Size mSize;
};

} // namespace zqbchwcx::qt
