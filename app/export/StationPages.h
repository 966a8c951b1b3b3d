#pragma once

#include "app/export/PrintedTable.h"

#include <QDate>
#include <QFont>
#include <QLocale>
#include <QSizeF>
#include <QString>

#include <functional>
#include <vector>

class QPagedPaintDevice;
class QPainter;

namespace quillon_ed {

/// What stands at the top of every page.
struct PageHeader {
    QString stationName;
    QDate date;
    QLocale locale; ///< how the date is written
};

/// Pages with a header, filled with drawings and a table. Sizes are logical pixels (96 to the inch).
class StationPages {
public:
    StationPages(PageHeader header, QSizeF pageSize);
    /// The pages know where they are.
    StationPages(const StationPages&) = delete;
    StationPages& operator=(const StationPages&) = delete;

    /// A drawing on a page of its own, as large as it fits, but at most twice its size.
    void AddDrawing(QSizeF size, std::function<void(QPainter&)> paint);
    /// As many pages as the table needs; its headings stand on each of them.
    void AddTable(const PrintedTable& table);

    int Count() const { return static_cast<int>(mcolPages.size()); }
    void Paint(QPainter& painter, int page) const;

private:
    QRectF Body() const;
    void PaintHeader(QPainter& painter, int page) const;
    std::vector<double> ColumnWidths(const PrintedTable& table) const;
    void PaintRows(QPainter& painter, const PrintedTable& table, const std::vector<double>& widths, std::size_t first,
                   std::size_t count) const;

    PageHeader mHeader;
    QSizeF mPageSize;
    QFont mFont;
    QFont mBold;
    std::vector<std::function<void(QPainter&)>> mcolPages;
};

/// An upright A4 page with margins of 15 mm.
void UseStandardPage(QPagedPaintDevice& device);

/// The size of a device's page within its margins, in logical pixels.
QSizeF PageSizeOf(const QPagedPaintDevice& device);

/// Paints pages from the first to the last (counted from 1, as users do) on the device.
/// False when the device cannot be painted on.
bool PaintPages(const StationPages& pages, QPagedPaintDevice& device, int first, int last);

} // namespace quillon_ed
