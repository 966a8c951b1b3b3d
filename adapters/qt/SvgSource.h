#pragma once

#include "adapters/qt/ImageSource.h"

#include <QByteArray>

#include <memory>

class QSvgRenderer;

namespace zqbchwcx::qt {

/// A vector picture.
class SvgSource : public ImageSource {
public:
    /// Null when the bytes are no SVG picture. A logical width other than 0 scales the picture to it.
    static std::shared_ptr<const ImageSource> Read(const QByteArray& svg, std::int32_t lLogicalWidth = 0);

    SvgSource(std::unique_ptr<QSvgRenderer> renderer, Size size);
    ~SvgSource() override;

    Size LogicalSize() const override { return mSize; }
    void Paint(QPainter& painter, const QRectF& target) const override;
    QImage Render(const QRectF& part, QSize deviceSize) const override;

private:
    std::unique_ptr<QSvgRenderer> mRenderer;
    Size mSize;
};

} // namespace zqbchwcx::qt
