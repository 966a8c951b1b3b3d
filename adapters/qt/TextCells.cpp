#include "zqbchwcx/qt/TextCells.h"

#include "zqbchwcx/qt/UiFont.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace zqbchwcx::qt {
namespace {

constexpr std::size_t CacheLimit = 512;

} // namespace

void TextCells::Font(const QFont& font, double ratio)
{
    mRegular = ScaledFont(font, ratio);
    mRegular.setBold(false);
    mBold = mRegular;
    mBold.setBold(true);
    mCache.clear();
}

const TextCell& TextCells::Cell(std::string_view text, FontWeight weight, const QColor& color, const QColor& background)
{
    CacheKey key{std::string(text), weight, color.rgb(), background.rgb()};
    if (const auto found = mCache.find(key); found != mCache.end()) return found->second;
    if (mCache.size() >= CacheLimit) mCache.clear();
    const QString line = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    return mCache.emplace(std::move(key), Draw(line, weight, color, background)).first->second;
}

TextCell TextCells::Draw(const QString& text, FontWeight weight, const QColor& color, const QColor& background) const
{
    const QFontMetrics regular(mRegular);
    const QFontMetrics bold(mBold);
    // The cell is as high as the ink, so that a number in a frame leaves the frame whole.
    const QRect ink = regular.tightBoundingRect(text).united(bold.tightBoundingRect(text)).adjusted(-1, -1, 1, 1);
    const QFontMetrics& metrics = weight == FontWeight::Bold ? bold : regular;
    const int textWidth = metrics.horizontalAdvance(text);
    const int cellWidth = std::max({regular.horizontalAdvance(text), bold.horizontalAdvance(text), 1});

    TextCell cell;
    cell.image = QImage(cellWidth, std::max(ink.height(), 1), QImage::Format_RGB32);
    cell.image.fill(background);
    cell.middle = -ink.top() - regular.capHeight() / 2;
    QPainter painter(&cell.image);
    painter.setFont(weight == FontWeight::Bold ? mBold : mRegular);
    painter.setPen(color);
    painter.drawText((cellWidth - textWidth) / 2, -ink.top(), text);
    return cell;
}

} // namespace zqbchwcx::qt
