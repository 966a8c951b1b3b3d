#include "zqbchwcx/qt/SvgSource.h"

#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <cmath>
#include <optional>
#include <utility>

namespace zqbchwcx::qt {

namespace {

/// The size in logical pixels; nothing for a picture that has none.
std::optional<Size> SizeOf(QSizeF own, std::int32_t lLogicalWidth)
{
    if (own.width() <= 0 || own.height() <= 0) return std::nullopt;
    const double width = lLogicalWidth > 0 ? lLogicalWidth : own.width();
    const Size size{static_cast<std::int32_t>(std::lrint(width)),
                    static_cast<std::int32_t>(std::lrint(own.height() * width / own.width()))};
    if (size.width < 1 || size.height < 1) return std::nullopt;
    return size;
}

QSizeF ViewBoxSize(const QByteArray& svg)
{
    QXmlStreamReader reader(svg);
    if (!reader.readNextStartElement() || reader.name() != u"svg") return {};
    const QStringList numbers = reader.attributes().value(QLatin1String("viewBox")).toString().split(u' ');
    return numbers.size() == 4 ? QSizeF(numbers[2].toDouble(), numbers[3].toDouble()) : QSizeF();
}

} // namespace

std::shared_ptr<const ImageSource> SvgSource::Read(const QByteArray& svg, std::int32_t lLogicalWidth)
{
    auto renderer = std::make_unique<QSvgRenderer>();
    if (!renderer->load(svg) || !renderer->isValid()) return nullptr;
    const auto size = SizeOf(renderer->viewBoxF().size(), lLogicalWidth);
    return size ? std::make_shared<SvgSource>(svg, *size, std::move(renderer)) : nullptr;
}

std::shared_ptr<const ImageSource> SvgSource::ReadLater(const QByteArray& svg)
{
    const auto size = SizeOf(ViewBoxSize(svg), 0);
    return size ? std::make_shared<SvgSource>(svg, *size) : nullptr;
}

SvgSource::SvgSource(QByteArray svg, Size size, std::unique_ptr<QSvgRenderer> renderer)
    : mSvg(std::move(svg)), mSize(size), mRenderer(std::move(renderer))
{
}

SvgSource::~SvgSource() = default;

void SvgSource::Paint(QPainter& painter, const QRectF& target) const
{
    Renderer().render(&painter, target);
}

QSvgRenderer& SvgSource::Renderer() const
{
    if (!mRenderer) mRenderer = std::make_unique<QSvgRenderer>(mSvg);
    return *mRenderer;
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
