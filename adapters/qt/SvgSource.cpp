#include "adapters/qt/SvgSource.h"

#include <QPainter>
#include <QSvgRenderer>

#include <cmath>
#include <utility>

namespace zqbchwcx::qt {

std::shared_ptr<const ImageSource> SvgSource::Read(const QByteArray& svg, std::int32_t lLogicalWidth)
{
    auto renderer = std::make_unique<QSvgRenderer>();
    if (!renderer->load(svg) || !renderer->isValid()) return nullptr;
    const QSizeF own = renderer->viewBoxF().size();
    if (own.width() <= 0 || own.height() <= 0) return nullptr;
    const double width = lLogicalWidth > 0 ? lLogicalWidth : own.width();
    const Size size{static_cast<std::int32_t>(std::lrint(width)),
                    static_cast<std::int32_t>(std::lrint(own.height() * width / own.width()))};
    if (size.width < 1 || size.height < 1) return nullptr;
    return std::make_shared<SvgSource>(std::move(renderer), size);
}

SvgSource::SvgSource(std::unique_ptr<QSvgRenderer> renderer, Size size) : mRenderer(std::move(renderer)), mSize(size) {}

SvgSource::~SvgSource() = default;

void SvgSource::Paint(QPainter& painter, const QRectF& target) const
{
    mRenderer->render(&painter, target);
}

QImage SvgSource::Render(const QRectF& part, QSize deviceSize) const
{
    QImage image(deviceSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(deviceSize.width() / part.width(), deviceSize.height() / part.height());
    painter.translate(-part.topLeft());
    Paint(painter, QRectF(0, 0, mSize.width, mSize.height));
    return image;
}

} // namespace zqbchwcx::qt
