#include "zqbchwcx/qt/TextLines.h"

#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/UiFont.h"

#include <QFontMetrics>
#include <QPainter>

namespace zqbchwcx::qt {
namespace {

constexpr qsizetype CacheLimit = 1024;
/// More than fit into any cell.
constexpr qsizetype MostCharacters = 1000;

} // namespace

void TextLines::Font(const QFont& font, double ratio)
{
    if (ratio == mRatio && font == mLogicalFont) return;
    mLogicalFont = font;
    mRatio = ratio;
    mFont = ScaledFont(font, ratio);
    const QFontMetrics metrics(mFont);
    mAscent = metrics.ascent();
    mCapHeight = metrics.capHeight();
    mcolLines.clear();
}

void TextLines::Draw(QPainter& painter, const QRect& box, const QString& text, CellAlignment alignment,
                     const QColor& color)
{
    if (text.isEmpty() || box.isEmpty()) return;
    const Line& line = Laid(text, box.width());
    const int surplus = alignment == CellAlignment::Centre ? (box.width() - line.width) / 2 : 0;
    // Capitals and digits stand in the middle of the box.
    const int baseline = box.top() + (box.height() + mCapHeight) / 2;
    painter.setFont(mFont);
    painter.setPen(color);
    painter.drawStaticText(box.left() + surplus, baseline - mAscent, line.text);
}

const TextLines::Line& TextLines::Laid(const QString& text, int width)
{
    const CacheKey key(text, width);
    if (const auto found = mcolLines.constFind(key); found != mcolLines.constEnd()) return *found;
    if (mcolLines.size() >= CacheLimit) mcolLines.clear();
    const QFontMetrics metrics(mFont);
    // Whatever the text holds, it is one line.
    const QString visible = metrics.elidedText(PlainText(text, MostCharacters), Qt::ElideRight, width);
    Line line{QStaticText(visible), metrics.horizontalAdvance(visible)};
    line.text.setTextFormat(Qt::PlainText);
    line.text.prepare({}, mFont);
    return *mcolLines.insert(key, line);
}

} // namespace zqbchwcx::qt
