#pragma once

#include "zqbchwcx/platform/Geometry.h"

#include <QImage>
#include <QRectF>

class QPainter;

namespace zqbchwcx::qt {

/// What an image is made of, drawn anew for every size.
class ImageSource {
public:
    virtual ~ImageSource() = default;

    /// In logical pixels.
    virtual Size LogicalSize() const = 0;
    /// Draws the whole picture into the rectangle; on paper a vector picture stays one.
    virtual void Paint(QPainter& painter, const QRectF& target) const = 0;
    /// The part of the picture (logical pixels), filling an image of the given size (device pixels).
    virtual QImage Render(const QRectF& part, QSize deviceSize) const = 0;
};

} // namespace zqbchwcx::qt
