#include "zqbchwcx/qt/ImageFile.h"

#include "zqbchwcx/qt/RasterSource.h"
#include "zqbchwcx/qt/SvgSource.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QString>

#include <algorithm>
#include <cmath>

namespace zqbchwcx::qt {
namespace {

constexpr qint64 LargestFile = qint64{16} << 20;
constexpr int LargestSide = 4096;
constexpr double LargestScale = 4;

QString ExistingFile(const QString& directory, const QString& name)
{
    const QDir dir(directory);
    if (QFileInfo(dir.filePath(name)).isFile()) return dir.filePath(name);
    const auto entries = dir.entryList(QDir::Files | QDir::Readable);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0) return dir.filePath(entry);
    }
    return {};
}

QImage ReadPixels(const QString& path)
{
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    if (!size.isValid() || size.width() > LargestSide || size.height() > LargestSide) return {};
    return reader.read().convertToFormat(QImage::Format_ARGB32);
}

void MakeCyanTransparent(QImage& image)
{
    const QRgb mask = qRgb(0, 255, 255);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            if ((line[x] | 0xFF000000U) == mask) line[x] = 0;
        }
    }
}

/// How many of its pixels make one logical pixel: a picture as wide as a cell or narrower is drawn as it is.
double PixelsPerLogical(int width, std::int32_t lLogicalWidth)
{
    return std::clamp(std::round(static_cast<double>(width) / lLogicalWidth), 1.0, LargestScale);
}

std::shared_ptr<const ImageSource> ReadSvg(const QString& path, std::int32_t lLogicalWidth)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return nullptr;
    auto source = SvgSource::Read(file.readAll(), lLogicalWidth);
    if (!source || source->LogicalSize().height > LargestSide) return nullptr;
    return source;
}

std::shared_ptr<const ImageSource> ReadSource(const QString& path, std::int32_t lLogicalWidth)
{
    const QFileInfo info(path);
    if (info.size() > LargestFile) return nullptr;
    const QString suffix = info.suffix().toLower();
    if (suffix == u"svg") return ReadSvg(path, lLogicalWidth);

    QImage image = ReadPixels(path);
    if (image.isNull()) return nullptr;
    const bool isBitmap = suffix == u"bmp";
    if (isBitmap) MakeCyanTransparent(image);
    const double scale = isBitmap ? 1 : PixelsPerLogical(image.width(), lLogicalWidth);
    const Size size{static_cast<std::int32_t>(std::lrint(image.width() / scale)),
                    static_cast<std::int32_t>(std::lrint(image.height() / scale))};
    return std::make_shared<RasterSource>(std::move(image), size);
}

} // namespace

QtImagePtr LoadImageFile(std::string_view path, std::int32_t lLogicalWidth)
{
    QString given = QString::fromUtf8(path.data(), static_cast<qsizetype>(path.size()));
    given.replace(QLatin1Char('\\'), QLatin1Char('/'));
    const QFileInfo info(given);
    for (const QString& name : {info.fileName(), info.completeBaseName() + ".png", info.completeBaseName() + ".svg"}) {
        const QString file = ExistingFile(info.path(), name);
        if (file.isEmpty()) continue;
        if (auto source = ReadSource(file, lLogicalWidth))
            return std::make_shared<QtImage>(std::move(source), EdgeStyle::Hard);
    }
    return nullptr;
}

} // namespace zqbchwcx::qt
