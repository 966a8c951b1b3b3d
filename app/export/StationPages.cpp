#include "app/export/StationPages.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include <algorithm>
#include <memory>
#include <numeric>

namespace quillon_ed {

namespace {

constexpr double PixelsPerInch = 96;
constexpr double HeaderHeight = 24;
constexpr double HeaderDistance = 16; ///< from the header's line to the body
constexpr double RowHeight = 18;
constexpr double CellPadding = 4;
constexpr double LargestMagnification = 2;
constexpr int TextPixels = 11;

QFont PageFont(bool bold)
{
    QFont font;
    font.setPixelSize(TextPixels);
    font.setBold(bold);
    return font;
}

} // namespace

StationPages::StationPages(PageHeader header, QSizeF pageSize)
    : mHeader(std::move(header)), mPageSize(pageSize), mFont(PageFont(false)), mBold(PageFont(true))
{
}

void StationPages::AddDrawing(QSizeF size, std::function<void(QPainter&)> paint)
{
    const QRectF body = Body();
    const double factor = std::min({body.width() / size.width(), body.height() / size.height(), LargestMagnification});
    mcolPages.emplace_back([=, paint = std::move(paint)](QPainter& painter) {
        painter.translate(body.topLeft());
        painter.scale(factor, factor);
        paint(painter);
    });
}

void StationPages::AddTable(const PrintedTable& table)
{
    const auto shared = std::make_shared<const PrintedTable>(table);
    const std::vector<double> widths = ColumnWidths(table);
    const auto rowsPerPage = static_cast<std::size_t>(std::max(1.0, Body().height() / RowHeight - 1));
    for (std::size_t first = 0; first == 0 || first < table.rows.size(); first += rowsPerPage) {
        const std::size_t count = std::min(rowsPerPage, table.rows.size() - first);
        mcolPages.emplace_back([this, shared, widths, first, count](QPainter& painter) {
            PaintRows(painter, *shared, widths, first, count);
        });
    }
}

void StationPages::Paint(QPainter& painter, int page) const
{
    painter.save();
    PaintHeader(painter, page);
    mcolPages[static_cast<std::size_t>(page)](painter);
    painter.restore();
}

QRectF StationPages::Body() const
{
    return QRectF(QPointF(), mPageSize).adjusted(0, HeaderHeight + HeaderDistance, 0, 0);
}

void StationPages::PaintHeader(QPainter& painter, int page) const
{
    const QString number = QCoreApplication::translate("StationPages", "Page %1 of %2").arg(page + 1).arg(Count());
    const QString date = mHeader.locale.toString(mHeader.date, QLocale::LongFormat);
    const QFontMetricsF metrics(mFont);
    const double side = std::max(metrics.horizontalAdvance(number), metrics.horizontalAdvance(date));
    const QRectF line(0, 0, mPageSize.width(), HeaderHeight - 4);

    painter.setPen(Qt::black);
    painter.setFont(mFont);
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter, date + QStringLiteral("   ·   ") + number);
    painter.setFont(mBold);
    const double nameWidth = std::max(0.0, line.width() - 2 * side - 40);
    const QString name = QFontMetricsF(mBold).elidedText(mHeader.stationName, Qt::ElideRight, nameWidth);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, name);
    painter.fillRect(QRectF(0, HeaderHeight - 1, mPageSize.width(), 0.75), Qt::black);
}

std::vector<double> StationPages::ColumnWidths(const PrintedTable& table) const
{
    const QFontMetricsF metrics(mFont);
    const QFontMetricsF bold(mBold);
    std::vector<double> widths;
    for (const QString& heading : table.headings) widths.push_back(bold.horizontalAdvance(heading) + 2 * CellPadding);
    for (const QStringList& row : table.rows)
        for (std::size_t column = 0; column < widths.size(); ++column) {
            const QString& text = row[static_cast<qsizetype>(column)];
            widths[column] = std::max(widths[column], metrics.horizontalAdvance(text) + 2 * CellPadding);
        }
    const double total = std::accumulate(widths.begin(), widths.end(), 0.0);
    // What is too wide is shared fairly: only columns wider than an equal share give way.
    if (total > mPageSize.width() && !widths.empty()) {
        const double share = mPageSize.width() / static_cast<double>(widths.size());
        double narrow = 0;
        double excess = 0;
        for (const double width : widths) {
            narrow += std::min(width, share);
            excess += std::max(0.0, width - share);
        }
        const double keep = (mPageSize.width() - narrow) / excess;
        for (double& width : widths) width = std::min(width, share) + std::max(0.0, width - share) * keep;
    }
    return widths;
}

void StationPages::PaintRows(QPainter& painter, const PrintedTable& table, const std::vector<double>& widths,
                             std::size_t first, std::size_t count) const
{
    double top = Body().top();
    const auto paintRow = [&](const QStringList& texts, const QFont& font) {
        const QFontMetricsF metrics(font);
        painter.setFont(font);
        double left = 0;
        for (std::size_t column = 0; column < widths.size(); ++column) {
            const QRectF cell(left + CellPadding, top, widths[column] - 2 * CellPadding, RowHeight);
            const QString text =
                metrics.elidedText(texts[static_cast<qsizetype>(column)], Qt::ElideRight, cell.width() + 0.5);
            painter.drawText(cell, Qt::AlignLeft | Qt::AlignVCenter, text);
            left += widths[column];
        }
        top += RowHeight;
        painter.fillRect(QRectF(0, top - 0.5, left, 0.5), QColor(0xB0, 0xB0, 0xB0));
    };
    painter.setPen(Qt::black);
    paintRow(table.headings, mBold);
    for (std::size_t row = first; row < first + count; ++row) paintRow(table.rows[row], mFont);
}

void UseStandardPage(QPagedPaintDevice& device)
{
    constexpr double Margin = 15;
    device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait,
                                     QMarginsF(Margin, Margin, Margin, Margin), QPageLayout::Millimeter));
}

QSizeF PageSizeOf(const QPagedPaintDevice& device)
{
    return device.pageLayout().paintRect(QPageLayout::Inch).size() * PixelsPerInch;
}

bool PaintPages(const StationPages& pages, QPagedPaintDevice& device, int first, int last)
{
    QPainter painter;
    if (!painter.begin(&device)) return false;
    painter.scale(device.logicalDpiX() / PixelsPerInch, device.logicalDpiY() / PixelsPerInch);
    for (int page = first; page <= last; ++page) {
        if (page > first && !device.newPage()) return false;
        pages.Paint(painter, page - 1);
    }
    return painter.end();
}

} // namespace quillon_ed
