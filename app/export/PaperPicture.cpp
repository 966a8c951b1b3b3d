#include "app/export/PaperPicture.h"

#include "app/export/PaperColors.h"
#include "app/export/PaperSite.h"
#include "zqbchwcx/qt/QtImage.h"
#include "zqbchwcx/qt/QtImageList.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

QRectF ToQRectF(const Rect& rect)
{
    return QRectF(rect.left, rect.top, rect.width(), rect.height());
}

} // namespace

PaperPicture::PaperPicture(PaperSite& site, const Rect& rect) : PaperItem(&site), moSite(site), mRect(rect) {}

void PaperPicture::Paint(QPainter& painter) const
{
    if (!mbVisible) return;
    painter.save();
    painter.translate(mRect.left, mRect.top);
    painter.setClipRect(QRectF(0, 0, mRect.width(), mRect.height()));
    for (const auto& step : mcolSteps) step(painter);
    painter.restore();
}

void PaperPicture::FillBox(const Rect& rect, OleColor color)
{
    mcolSteps.emplace_back(
        [area = ToQRectF(rect), fill = PaperColor(color)](QPainter& painter) { painter.fillRect(area, fill); });
}

void PaperPicture::DrawLine(Point from, Point to, OleColor color)
{
    FillBox({std::min(from.x, to.x), std::min(from.y, to.y), std::max(from.x, to.x) + 1, std::max(from.y, to.y) + 1},
            color);
}

void PaperPicture::DrawCenteredText(std::string_view text, const Rect& box, FontWeight weight, OleColor color)
{
    QFont font = moSite.Font();
    font.setBold(weight == FontWeight::Bold);
    const QString line = QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
    const QFontMetricsF metrics(font);
    // As outlines the text looks the same on a machine that lacks the font.
    QPainterPath outlines;
    outlines.addText(0, 0, font, line);
    QRectF cell(0, -metrics.ascent(), metrics.horizontalAdvance(line), metrics.height());
    const QPointF corner = ToQRectF(box).center() - cell.center();
    outlines.translate(corner);
    cell.translate(corner);
    // The cell is as high as the ink, so that a number in a frame leaves the frame whole.
    const QRectF ink = outlines.boundingRect();
    cell.setTop(ink.top());
    cell.setBottom(ink.bottom());
    mcolSteps.emplace_back([cell = cell.intersected(ToQRectF(box)), outlines, back = PaperColor(mBackColor),
                            fill = PaperColor(color)](QPainter& painter) {
        painter.fillRect(cell, back);
        painter.fillPath(outlines, fill);
    });
}

void PaperPicture::DrawLeftText(std::string_view text, const Rect& box, OleColor color)
{
    const QFontMetricsF metrics(moSite.Font());
    const QRectF area = ToQRectF(box);
    const QString line = metrics.elidedText(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
                                            Qt::ElideRight, area.width());
    QPainterPath outlines;
    outlines.addText(area.left(), area.center().y() + metrics.capHeight() / 2, moSite.Font(), line);
    mcolSteps.emplace_back(
        [outlines, fill = PaperColor(color)](QPainter& painter) { painter.fillPath(outlines, fill); });
}

void PaperPicture::DrawListImage(const ImageList& list, std::string_view key, Point at, DrawStyle style)
{
    DrawImage(dynamic_cast<const qt::QtImageList&>(list).Image(key), at, style);
}

void PaperPicture::DrawImage(const Image& image, Point at, DrawStyle /*style*/)
{
    // The step outlives the list that the image is from, so it keeps what the image is made of.
    mcolSteps.emplace_back([source = dynamic_cast<const qt::QtImage&>(image).Source(), at](QPainter& painter) {
        const Size size = source->LogicalSize();
        source->Paint(painter, QRectF(at.x, at.y, size.width, size.height));
    });
}

void PaperPicture::DrawFocusRect(const Rect& /*rect*/) {}

void PaperPicture::Events(PictureBoxEvents* /*receiver*/) {}

void PaperPicture::BackColor(OleColor color)
{
    mBackColor = color;
    // What was drawn before is covered for good.
    mcolSteps.clear();
    FillBox(MakeRect(0, 0, mRect.width(), mRect.height()), color);
}

void PaperPicture::Refresh() {}

void PaperPicture::SetFocus() {}

void PaperPicture::OLEDrag() {}

} // namespace quillon_ed
