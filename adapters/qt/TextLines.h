#pragma once

#include "zqbchwcx/platform/Grid.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QStaticText>
#include <QString>

class QPainter;

namespace zqbchwcx::qt {

/// Single lines of text in boxes, in device pixels, cut off with an ellipsis where they are too long. What was drawn
/// once is remembered.
class TextLines {
public:
    /// A logical font, and the ratio of the device.
    void Font(const QFont& font, double ratio);
    /// The painter is in device pixels.
    void Draw(QPainter& painter, const QRect& box, const QString& text, CellAlignment alignment, const QColor& color);

private:
    struct Line {
        QStaticText text;
        int width = 0;
    };
    using CacheKey = std::pair<QString, int>;

    const Line& Laid(const QString& text, int width);

    QFont mLogicalFont;
    double mRatio = 0;
    QFont mFont;
    int mAscent = 0;
    int mCapHeight = 0;
    QHash<CacheKey, Line> mcolLines; ///< by text and width of the box
};

} // namespace zqbchwcx::qt
