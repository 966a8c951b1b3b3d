#pragma once

#include "zqbchwcx/platform/ImageList.h"
#include "zqbchwcx/platform/Surface.h"
#include "zqbchwcx/qt/ImageSource.h"
#include "zqbchwcx/qt/PixelGrid.h"

#include <QColor>
#include <QImage>

#include <cstdint>
#include <map>
#include <memory>
#include <tuple>
#include <vector>

class QPainter;

namespace zqbchwcx::qt {

/// How the transparency of an image is drawn.
enum class EdgeStyle {
    Hard, ///< a pixel is drawn whole or not at all: drawn twice, it looks as drawn once
    Soft, ///< smoothed; for symbols on top of pictures that are drawn again with them
};

/// An image that is drawn crisp at every device pixel ratio, and remembers what it has drawn.
class QtImage : public Image {
public:
    /// The cuts are the logical columns and rows inside the image that must stay sharp edges at every ratio.
    QtImage(std::shared_ptr<const ImageSource> source, EdgeStyle edges, std::vector<int> columnCuts = {},
            std::vector<int> rowCuts = {});

    Size LogicalSize() const { return mSize; }
    const std::shared_ptr<const ImageSource>& Source() const { return mSource; }
    /// The device pixels of the image at that place of the grid, in the style.
    const QImage& At(Point at, const PixelGrid& grid, DrawStyle style, const QColor& highlight) const;

private:
    QImage Render(Point at, const PixelGrid& grid) const;
    QImage RenderParts(Point at, const PixelGrid& grid, const QRect& bounds) const;

    /// Device ratio, the fractions of a device pixel at which the image starts, blending colour (0 for none).
    using CacheKey = std::tuple<double, int, int, QRgb>;

    std::shared_ptr<const ImageSource> mSource;
    EdgeStyle mEdges;
    Size mSize;
    std::vector<int> mColumnEdges;
    std::vector<int> mRowEdges;
    mutable std::map<CacheKey, QImage> mCache;
};
using QtImagePtr = std::shared_ptr<const QtImage>;

} // namespace zqbchwcx::qt
