#pragma once

#include "zqbchwcx/platform/Surface.h"
#include "zqbchwcx/qt/PixelGrid.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>

#include <map>
#include <string>
#include <tuple>

namespace zqbchwcx::qt {

/// One line of text in an opaque cell, in device pixels.
struct TextCell {
    QImage image;
    /// The row halfway up a capital letter or digit.
    int middle = 0;
};

/// Texts as they are drawn: opaque cells, remembered. The cell of a text has the same size in both weights, so that
/// either covers the other wholly.
class TextCells {
public:
    void Font(const QFont& font, double ratio);
    const TextCell& Cell(std::string_view text, FontWeight weight, const QColor& color, const QColor& background);

private:
    TextCell Draw(const QString& text, FontWeight weight, const QColor& color, const QColor& background) const;

    using CacheKey = std::tuple<std::string, FontWeight, QRgb, QRgb>;

    QFont mRegular;
    QFont mBold;
    std::map<CacheKey, TextCell> mCache;
};

} // namespace zqbchwcx::qt
