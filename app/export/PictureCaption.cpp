#include "app/export/PictureCaption.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace quillon_ed {

namespace {

constexpr double Margin = 6;
constexpr int TextPixels = 11;
constexpr int Flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap;

} // namespace

PictureCaption::PictureCaption(QString text, double width) : mText(std::move(text)), mWidth(width)
{
    mFont.setPixelSize(TextPixels);
    if (mText.isEmpty()) return;
    mHeight = std::ceil(QFontMetricsF(mFont).boundingRect(TextBox(1), Flags, mText).height() + 2 * Margin);
}

void PictureCaption::Paint(QPainter& painter, const QColor& color) const
{
    painter.setFont(mFont);
    painter.setPen(color);
    painter.drawText(TextBox(mHeight), Flags, mText);
}

QRectF PictureCaption::TextBox(double height) const
{
    return QRectF(Margin, Margin, mWidth - 2 * Margin, height);
}

} // namespace quillon_ed
