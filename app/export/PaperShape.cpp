#include "app/export/PaperShape.h"

#include "app/export/PaperColors.h"
#include "app/export/PaperSite.h"

#include <QPainter>

namespace quillon_ed {

PaperShape::PaperShape(PaperSite& site, const zqbchwcx::Rect& rect, const QColor& color)
    : PaperItem(&site), mRect(rect), mColor(color)
{
}

void PaperShape::BackColor(zqbchwcx::OleColor color)
{
    mColor = PaperColor(color);
}

void PaperShape::Paint(QPainter& painter) const
{
    if (mbVisible) painter.fillRect(QRectF(mRect.left, mRect.top, mRect.width(), mRect.height()), mColor);
}

} // namespace quillon_ed
