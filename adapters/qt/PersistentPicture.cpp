#include "zqbchwcx/qt/PersistentPicture.h"

#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/QtImage.h"
#include "zqbchwcx/qt/QtImageList.h"
#include "zqbchwcx/qt/SystemColors.h"
#include "zqbchwcx/qt/UiFont.h"

#include <QGuiApplication>
#include <QPalette>
#include <QPolygonF>

#include <algorithm>
#include <utility>

namespace zqbchwcx::qt {
namespace {

constexpr qsizetype LongestCellText = 400;

QImage NewImage(const PixelGrid& grid, Size size, const QColor& background)
{
    const QSize device(std::max(grid.Edge(size.width), 1), std::max(grid.Edge(size.height), 1));
    QImage image(device, QImage::Format_RGB32);
    image.fill(background);
    return image;
}

void Invert(QImage& image, const QRect& device)
{
    const QRect inside = device.intersected(image.rect());
    for (int y = inside.top(); y <= inside.bottom(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = inside.left(); x <= inside.right(); ++x) line[x] ^= 0x00FFFFFFU;
    }
}

/// Calls back for every second logical pixel of the rectangle's outline, each pixel once.
template <class Visit>
void ForEachDot(const Rect& rect, Visit&& visit)
{
    const auto dot = [&](std::int32_t x, std::int32_t y) {
        if ((x + y) % 2 == 0) visit(MakeRect(x, y, 1, 1));
    };
    for (std::int32_t x = rect.left; x < rect.right; ++x) {
        dot(x, rect.top);
        if (rect.height() > 1) dot(x, rect.bottom - 1);
    }
    for (std::int32_t y = rect.top + 1; y < rect.bottom - 1; ++y) {
        dot(rect.left, y);
        if (rect.width() > 1) dot(rect.right - 1, y);
    }
}

Rect Normalized(const Rect& rect)
{
    return {std::min(rect.left, rect.right), std::min(rect.top, rect.bottom), std::max(rect.left, rect.right),
            std::max(rect.top, rect.bottom)};
}

/// Half of the area, in device pixels: those that the diagonal cuts are mixed with the background, never with what was
/// drawn before, so that it looks the same whatever was there.
QImage Triangle(QSize area, Corner corner, const QColor& color, const QColor& background)
{
    const QRectF box({}, area);
    QPolygonF points{box.topLeft(), box.topRight(), box.bottomRight(), box.bottomLeft()};
    // The corner opposite to the filled one is cut off.
    switch (corner) {
    case Corner::TopLeft:
        points.remove(2);
        break;
    case Corner::TopRight:
        points.remove(3);
        break;
    case Corner::BottomLeft:
        points.remove(1);
        break;
    case Corner::BottomRight:
        points.remove(0);
        break;
    }
    QImage image(area, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(points);
    painter.end();
    for (int y = 0; y < area.height(); ++y) {
        for (int x = 0; x < area.width(); ++x) {
            const int covered = image.pixelColor(x, y).alpha();
            const auto mixed = [&](int a, int b) { return (a * covered + b * (255 - covered)) / 255; };
            if (covered == 0) continue;
            image.setPixelColor(x, y,
                                QColor(mixed(color.red(), background.red()), mixed(color.green(), background.green()),
                                       mixed(color.blue(), background.blue())));
        }
    }
    return image;
}

} // namespace

PersistentPicture::PersistentPicture(Size size, double ratio)
    : mSize(size), mGrid(ratio), mBackground(ToQColor(vxColorWindowBackground).value_or(Qt::white)),
      mFont(DefaultUiFont())
{
    mImage = NewImage(mGrid, mSize, mBackground);
    mTexts.Font(mFont, ratio);
}

PersistentPicture::~PersistentPicture() = default;

void PersistentPicture::Resize(Size size)
{
    if (size == mSize) return;
    mSize = size;
    QImage image = NewImage(mGrid, mSize, mBackground);
    QPainter(&image).drawImage(0, 0, mImage);
    Replace(std::move(image));
}

void PersistentPicture::Ratio(double ratio)
{
    if (ratio == mGrid.Ratio()) return;
    mGrid = PixelGrid(ratio);
    QImage image = NewImage(mGrid, mSize, mBackground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(image.rect(), mImage);
    painter.end();
    Replace(std::move(image));
    mTexts.Font(mFont, ratio);
}

void PersistentPicture::Font(const QFont& font)
{
    mFont = font;
    mTexts.Font(mFont, mGrid.Ratio());
}

void PersistentPicture::BackColor(OleColor color)
{
    mBackColor = color;
    mBackground = ToGround(color).value_or(mBackground);
    mcolTranslated.clear();
    Painter().fillRect(mImage.rect(), mBackground);
    Changed(mImage.rect());
}

void PersistentPicture::FillBox(const Rect& rect, OleColor color)
{
    Fill(rect, Translate(color));
}

void PersistentPicture::DrawLine(Point from, Point to, OleColor color)
{
    const Rect line = Normalized({from.x, from.y, to.x, to.y});
    Fill({line.left, line.top, line.right + 1, line.bottom + 1}, Translate(color));
}

void PersistentPicture::FillTriangle(const Rect& square, Corner corner, OleColor color)
{
    if (mGrid.Ratio() <= 1) return Surface::FillTriangle(square, corner, color);
    const QRect device = mGrid.Device(square);
    if (device.isEmpty()) return;
    Painter().drawImage(device.topLeft(), Triangle(device.size(), corner, Translate(color), mBackground));
    Changed(device);
}

void PersistentPicture::DrawCenteredText(std::string_view text, const Rect& box, FontWeight weight, OleColor color)
{
    if (text.empty()) return;
    const TextCell& cell = mTexts.Cell(text, weight, Translate(color), mBackground);
    const QRect device = mGrid.Device(box);
    const QPoint corner(device.left() + (device.width() - cell.image.width()) / 2,
                        device.top() + device.height() / 2 - cell.middle);
    const QRect target(corner, cell.image.size());
    const QRect visible = target.intersected(device);
    Painter().drawImage(visible.topLeft(), cell.image, visible.translated(-target.topLeft()));
    Changed(visible);
}

void PersistentPicture::DrawLeftText(std::string_view text, const Rect& box, OleColor color)
{
    const QRect device = mGrid.Device(box);
    const QFont font = ScaledFont(mFont, mGrid.Ratio());
    const QFontMetrics metrics(font);
    const QString line =
        metrics.elidedText(PlainText(ToQString(text), LongestCellText), Qt::ElideRight, device.width());
    QPainter& painter = Painter();
    painter.save();
    painter.setClipRect(device);
    painter.setFont(font);
    painter.setPen(Translate(color));
    painter.drawText(device.left(), device.top() + (device.height() + metrics.capHeight()) / 2, line);
    painter.restore();
    Changed(device);
}

void PersistentPicture::DrawListImage(const ImageList& list, std::string_view key, Point at, DrawStyle style)
{
    DrawImage(dynamic_cast<const QtImageList&>(list).Image(key), at, style);
}

void PersistentPicture::DrawImage(const Image& image, Point at, DrawStyle style)
{
    const QColor& highlight = Translate(vxColorHighlight);
    const QImage& pixels = dynamic_cast<const QtImage&>(image).At(at, mGrid, style, highlight);
    const QPoint corner(mGrid.Edge(at.x), mGrid.Edge(at.y));
    if (style == DrawStyle::Opaque || style == DrawStyle::OpaqueBlended)
        Painter().fillRect(QRect(corner, pixels.size()), mBackground);
    Painter().drawImage(corner, pixels);
    Changed(QRect(corner, pixels.size()));
}

void PersistentPicture::DrawFocusRect(const Rect& rect)
{
    const Rect normal = Normalized(rect);
    if (normal.width() == 0 || normal.height() == 0) return;
    ForEachDot(normal, [&](const Rect& dot) { Invert(mImage, mGrid.Device(dot)); });
    Changed(mGrid.Device(normal));
}

QPainter& PersistentPicture::Painter()
{
    if (!mPainter) mPainter = std::make_unique<QPainter>(&mImage);
    return *mPainter;
}

void PersistentPicture::Replace(QImage image)
{
    mPainter.reset();
    mImage = std::move(image);
    Changed(mImage.rect());
}

void PersistentPicture::Fill(const Rect& rect, const QColor& color)
{
    const QRect device = mGrid.Device(rect);
    if (device.isEmpty()) return;
    Painter().fillRect(device, color);
    Changed(device);
}

void PersistentPicture::Changed(const QRect& device)
{
    if (mOnChanged && !device.isEmpty()) mOnChanged(device);
}

const QColor& PersistentPicture::Translate(OleColor color)
{
    const qint64 paletteKey = QGuiApplication::palette().cacheKey();
    if (paletteKey != mPaletteKey) mcolTranslated.clear();
    mPaletteKey = paletteKey;
    for (const auto& [known, translated] : mcolTranslated) {
        if (known == color) return translated;
    }
    if (color == mBackColor) return mBackground;
    const bool isMark = color == vxColorButtonText || color == vxColorGrayText || color == vxColorWindowText;
    return mcolTranslated
        .emplace_back(color, isMark ? ReadableOn(color, mBackground) : ToQColor(color).value_or(mBackground))
        .second;
}

} // namespace zqbchwcx::qt
