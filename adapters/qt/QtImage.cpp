#include "zqbchwcx/qt/QtImage.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace zqbchwcx::qt {
namespace {

constexpr std::size_t CacheLimit = 256;
constexpr int OpaqueFrom = 128;

std::vector<int> WithBorders(std::vector<int> cuts, int extent)
{
    cuts.push_back(0);
    cuts.push_back(extent);
    std::sort(cuts.begin(), cuts.end());
    cuts.erase(std::unique(cuts.begin(), cuts.end()), cuts.end());
    return cuts;
}

bool IsBlended(DrawStyle style)
{
    return style == DrawStyle::Blended || style == DrawStyle::TransparentBlended || style == DrawStyle::OpaqueBlended;
}

void HardenEdges(QImage& image)
{
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(line[x]) < OpaqueFrom) line[x] = 0;
            else line[x] = qUnpremultiply(line[x]) | 0xFF000000U;
        }
    }
}

void BlendHalf(QImage& image, const QColor& color)
{
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.setOpacity(0.5);
    painter.fillRect(image.rect(), color);
}

/// At a whole ratio every logical edge is a device edge, so that nothing has to be cut.
bool IsWhole(double ratio)
{
    return ratio == std::floor(ratio);
}

int FractionOf(int logical, const PixelGrid& grid)
{
    constexpr double Steps = 1024;
    const double device = logical * grid.Ratio();
    return static_cast<int>(std::lrint((device - std::floor(device)) * Steps));
}

} // namespace

QtImage::QtImage(std::shared_ptr<const ImageSource> source, EdgeStyle edges, std::vector<int> columnCuts,
                 std::vector<int> rowCuts)
    : mSource(std::move(source)), mEdges(edges), mSize(mSource->LogicalSize()),
      mColumnEdges(WithBorders(std::move(columnCuts), mSize.width)),
      mRowEdges(WithBorders(std::move(rowCuts), mSize.height))
{
}

const QImage& QtImage::At(Point at, const PixelGrid& grid, DrawStyle style, const QColor& highlight) const
{
    const QRgb blend = IsBlended(style) ? highlight.rgb() : 0;
    const CacheKey key{grid.Ratio(), FractionOf(at.x, grid), FractionOf(at.y, grid), blend};
    if (const auto found = mCache.find(key); found != mCache.end()) return found->second;

    if (mCache.size() >= CacheLimit) mCache.clear();
    QImage image = Render(at, grid);
    if (blend != 0) BlendHalf(image, highlight);
    return mCache.emplace(key, std::move(image)).first->second;
}

QImage QtImage::Render(Point at, const PixelGrid& grid) const
{
    const QRect bounds = grid.Device(MakeRect(at.x, at.y, mSize.width, mSize.height));
    QImage image = IsWhole(grid.Ratio()) ? mSource->Render(QRectF(0, 0, mSize.width, mSize.height), bounds.size())
                                         : RenderParts(at, grid, bounds);
    if (mEdges == EdgeStyle::Hard) HardenEdges(image);
    return image;
}

QImage QtImage::RenderParts(Point at, const PixelGrid& grid, const QRect& bounds) const
{
    QImage image(bounds.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    for (std::size_t row = 1; row < mRowEdges.size(); ++row) {
        for (std::size_t column = 1; column < mColumnEdges.size(); ++column) {
            const Rect part{mColumnEdges[column - 1], mRowEdges[row - 1], mColumnEdges[column], mRowEdges[row]};
            const QRect device =
                grid.Device({at.x + part.left, at.y + part.top, at.x + part.right, at.y + part.bottom});
            if (device.isEmpty()) continue;
            painter.drawImage(device.topLeft() - bounds.topLeft(),
                              mSource->Render(QRectF(part.left, part.top, part.width(), part.height()), device.size()));
        }
    }
    painter.end();
    return image;
}

} // namespace zqbchwcx::qt
