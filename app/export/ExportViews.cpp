#include "app/export/ExportViews.h"

#include "app/export/PaperViews.h"
#include "app/export/PictureLayout.h"
#include "app/export/ShowStation.h"
#include "app/export/WriteBytes.h"
#include "zqbchwcx/qt/PixelGrid.h"
#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"

#include <QApplication>
#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <algorithm>
#include <string>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

constexpr int OverviewWidth = 270; ///< the racks, and some room right of them

QByteArray PngOf(const reference::StationPtr& station, const PictureContent& content, double scale)
{
    const qt::PixelGrid grid(scale);
    const PictureLayout layout(*station, content, OverviewWidth);
    const auto selection = SelectionOf(station, content);
    const QPalette palette = QApplication::palette();
    QImage image(grid.Edge(layout.Size().width()), grid.Edge(layout.Size().height()), QImage::Format_RGB32);
    image.fill(palette.color(QPalette::Base));
    QPainter painter(&image);
    // The picture ends where the station does; the views may be higher.
    const auto draw = [&](const QRect& rect, const QImage& pixels) {
        painter.drawImage(grid.Edge(rect.left()), grid.Edge(rect.top()), pixels, 0, 0, -1, grid.Edge(rect.height()));
    };
    if (content.HasOverview()) {
        const auto overview = MakeOverview(station, content, selection, layout.Overview().size());
        draw(layout.Overview(), overview->RenderToImage(scale));
    }
    if (content.HasTable())
        draw(layout.Table(), MakeTable(station, content, selection, layout.Table().size())->RenderToImage(scale));
    painter.scale(scale, scale);
    painter.translate(layout.CaptionCorner());
    layout.Caption().Paint(painter, palette.color(QPalette::Text));
    painter.end();
    QBuffer buffer;
    return image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

QByteArray PdfOf(const reference::StationPtr& station, const PictureContent& content, const PageHeader& header)
{
    const PaperViews views(station, content);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    UseStandardPage(writer);
    writer.setTitle(header.stationName);
    writer.setCreator(QStringLiteral("Quillon Ed"));
    StationPages pages(header, PageSizeOf(writer));
    pages.AddDrawing(views.Size(), [&](QPainter& painter) { views.Paint(painter); });
    return PaintPages(pages, writer, 1, pages.Count()) ? buffer.data() : QByteArray();
}

} // namespace

QByteArray SvgPictureOf(const reference::StationPtr& station, const PictureContent& content, const QString& title)
{
    const PaperViews views(station, content);
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(title);
    generator.setSize(views.Size().toSize());
    generator.setViewBox(QRectF(QPointF(), views.Size()));
    QPainter painter;
    if (!painter.begin(&generator)) return {};
    painter.fillRect(generator.viewBoxF(), Qt::white);
    views.Paint(painter);
    return painter.end() ? buffer.data() : QByteArray();
}

std::optional<PictureFormat> PictureFormatOf(const QString& fileName)
{
    const QString ending = QFileInfo(fileName).suffix().toLower();
    if (ending == QLatin1String("png")) return PictureFormat::Png;
    if (ending == QLatin1String("svg")) return PictureFormat::Svg;
    if (ending == QLatin1String("pdf")) return PictureFormat::Pdf;
    return {};
}

void ExportViews(const reference::StationPtr& station, const PictureContent& content, const PageHeader& header,
                 double scale, const QString& fileName)
{
    const auto format = PictureFormatOf(fileName);
    if (!format)
        throw reference::FileError(fileName.toStdString(), {}, "the name of a picture ends in .png, .svg or .pdf",
                                   "der Name eines Bilds endet auf .png, .svg oder .pdf");
    switch (*format) {
    case PictureFormat::Png:
        return WriteBytes(fileName, PngOf(station, content, scale));
    case PictureFormat::Svg:
        return WriteBytes(fileName, SvgPictureOf(station, content, header.stationName));
    case PictureFormat::Pdf:
        return WriteBytes(fileName, PdfOf(station, content, header));
    }
}

std::optional<reference::LocalizedText> AgainstContent(const reference::StationData& station,
                                                       const PictureContent& content)
{
    if (!content.HasTable()) return {};
    const std::string number = std::to_string(content.rack);
    const std::size_t most = station.kind == vxStationKindCentral ? CentralPlaceLayout::RackCount : 1;
    const std::size_t shown = std::min(station.racks.size(), most);
    if (content.rack < 0 || static_cast<std::size_t>(content.rack) >= shown) {
        const std::string last = std::to_string(shown - 1);
        return reference::LocalizedText{"there is no rack " + number + " in the table; its racks are 0 to " + last,
                                        "die Tabelle hat keinen Träger " + number + "; ihre Träger sind 0 bis " + last};
    }
    if (station.racks[static_cast<std::size_t>(content.rack)]->state == vxRackPresent) return {};
    return reference::LocalizedText{"the rack " + number + " of the station is not there",
                                    "der Träger " + number + " der Station ist nicht vorhanden"};
}

} // namespace quillon_ed
