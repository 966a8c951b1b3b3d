#include "app/export/PrintStation.h"

#include "app/export/ExportModuleList.h"
#include "app/export/PaperOverview.h"

#include <QPrinter>

#include <algorithm>
#include <optional>

namespace quillon_ed {

using namespace zqbchwcx;

bool PrintStation(const reference::StationPtr& station, const PageHeader& header, QPrinter& printer)
{
    StationPages pages(header, PageSizeOf(printer));
    std::optional<PaperOverview> overview;
    if (station->StationKind() == vxStationKindCentral) {
        overview.emplace(station);
        pages.AddDrawing(overview->Size(), [&](QPainter& painter) { overview->Paint(painter); });
    }
    pages.AddTable(ModuleListTable(station->Data(), station->ModuleTypes(), station->Context()->CurrentLanguage()));

    const bool isRange = printer.printRange() == QPrinter::PageRange;
    const int first = isRange ? std::clamp(printer.fromPage(), 1, pages.Count()) : 1;
    const int last = isRange ? std::clamp(printer.toPage(), first, pages.Count()) : pages.Count();
    printer.setDocName(header.stationName);
    return PaintPages(pages, printer, first, last);
}

} // namespace quillon_ed
