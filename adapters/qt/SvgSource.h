#pragma once

#include "zqbchwcx/qt/ImageSource.h"

#include <QByteArray>

#include <memory>

class QSvgRenderer;

namespace zqbchwcx::qt {

/// A vector picture.
class SvgSource : public ImageSource {
public:
    /// Null when the bytes are no SVG picture. A logical width other than 0 scales the picture to it.
    static std::shared_ptr<const ImageSource> Read(const QByteArray& svg, std::int32_t lLogicalWidth = 0);
    /// A picture of which only the size is read now, and the rest when it is first drawn. For pictures that are known
    /// to be in order. Null when the bytes do not start like one.
    static std::shared_ptr<const ImageSource> ReadLater(const QByteArray& svg);

    SvgSource(QByteArray svg, Size size, std::unique_ptr<QSvgRenderer> renderer = nullptr);
    ~SvgSource() override;

    Size LogicalSize() const override { return mSize; }
    void Paint(QPainter& painter, const QRectF& target) const override;
    QImage Render(const QRectF& part, QSize deviceSize) const override;

private:
    QSvgRenderer& Renderer() const;

    QByteArray mSvg;
    Size mSize;
    mutable std::unique_ptr<QSvgRenderer> mRenderer;
};

} // namespace zqbchwcx::qt
