#include "app/export/ExportOverview.h"

#include "app/export/PaperOverview.h"
#include "app/export/PartShown.h"
#include "app/export/ShowStation.h"
#include "app/export/WriteBytes.h"
#include "zqbchwcx/qt/RackOverviewWidget.h"
#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

QByteArray PngOf(const reference::StationPtr& station, double scale)
{
    qt::RackOverviewWidget widget;
    widget.resize(widget.sizeHint());
    ShowStation(*widget.Control(), station);
    const QImage overview = widget.RenderToImage(scale);
    const PictureCaption caption(PartShownText(*station), widget.width());
    const QPalette& palette = widget.palette();
    QImage image(overview.width(), overview.height() + static_cast<int>(caption.Height() * scale), overview.format());
    image.fill(palette.color(QPalette::Base));
    QPainter painter(&image);
    painter.drawImage(0, 0, overview);
    painter.translate(0, overview.height());
    painter.scale(scale, scale);
    caption.Paint(painter, palette.color(QPalette::Text));
    painter.end();
    QBuffer buffer;
    return image.save(&buffer, "PNG") ? buffer.data() : QByteArray();
}

QByteArray SvgOf(const reference::StationPtr& station, const QString& title)
{
    const PaperOverview overview(station);
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setTitle(title);
    generator.setSize(overview.Size().toSize());
    generator.setViewBox(QRectF(QPointF(), overview.Size()));
    QPainter painter;
    if (!painter.begin(&generator)) return {};
    painter.fillRect(generator.viewBoxF(), Qt::white);
    overview.Paint(painter);
    return painter.end() ? buffer.data() : QByteArray();
}

QByteArray PdfOf(const reference::StationPtr& station, const PageHeader& header)
{
    const PaperOverview overview(station);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    UseStandardPage(writer);
    writer.setTitle(header.stationName);
    writer.setCreator(QStringLiteral("Quillon Ed"));
    StationPages pages(header, PageSizeOf(writer));
    pages.AddDrawing(overview.Size(), [&](QPainter& painter) { overview.Paint(painter); });
    return PaintPages(pages, writer, 1, pages.Count()) ? buffer.data() : QByteArray();
}

} // namespace

std::optional<PictureFormat> PictureFormatOf(const QString& fileName)
{
    const QString ending = QFileInfo(fileName).suffix().toLower();
    if (ending == QLatin1String("png")) return PictureFormat::Png;
    if (ending == QLatin1String("svg")) return PictureFormat::Svg;
    if (ending == QLatin1String("pdf")) return PictureFormat::Pdf;
    return {};
}

void ExportOverview(const reference::StationPtr& station, const PageHeader& header, double scale,
                    const QString& fileName)
{
    const auto format = PictureFormatOf(fileName);
    if (!format)
        throw reference::FileError(fileName.toStdString(), {}, "the name of a picture ends in .png, .svg or .pdf",
                                   "der Name eines Bilds endet auf .png, .svg oder .pdf");
    switch (*format) {
    case PictureFormat::Png:
        return WriteBytes(fileName, PngOf(station, scale));
    case PictureFormat::Svg:
        return WriteBytes(fileName, SvgOf(station, header.stationName));
    case PictureFormat::Pdf:
        return WriteBytes(fileName, PdfOf(station, header));
    }
}

} // namespace quillon_ed
