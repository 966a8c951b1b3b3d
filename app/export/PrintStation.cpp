#include "app/export/PrintStation.h"

#include "app/export/ExportModuleList.h"
#include "app/export/PaperViews.h"
#include "app/export/WriteBytes.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>

#include <algorithm>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

bool WritesFile(const QPrinter& printer)
{
    return printer.outputFormat() == QPrinter::PdfFormat && !printer.outputFileName().isEmpty();
}

/// The printer itself would not tell that the file it writes was cut off. Empty when the pages could not be made.
QByteArray PdfOf(const StationPages& pages, const QPrinter& printer, int first, int last)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(printer.resolution());
    writer.setPageLayout(printer.pageLayout());
    writer.setTitle(printer.docName());
    writer.setCreator(printer.creator());
    return PaintPages(pages, writer, first, last) ? buffer.data() : QByteArray();
}

} // namespace

bool PrintStation(const reference::StationPtr& station, const PageHeader& header, QPrinter& printer)
{
    StationPages pages(header, PageSizeOf(printer));
    const PaperViews overview(station);
    pages.AddDrawing(overview.Size(), [&](QPainter& painter) { overview.Paint(painter); });
    pages.AddTable(ModuleListTable(station->Data(), station->ModuleTypes(), station->Context()->CurrentLanguage()));

    const bool isRange = printer.printRange() == QPrinter::PageRange;
    const int first = isRange ? std::clamp(printer.fromPage(), 1, pages.Count()) : 1;
    const int last = isRange ? std::clamp(printer.toPage(), first, pages.Count()) : pages.Count();
    printer.setDocName(header.stationName);
    if (WritesFile(printer)) {
        WriteBytes(printer.outputFileName(), PdfOf(pages, printer, first, last));
        return true;
    }
    return PaintPages(pages, printer, first, last) && printer.printerState() != QPrinter::Error;
}

} // namespace quillon_ed
