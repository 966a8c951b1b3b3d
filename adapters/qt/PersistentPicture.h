#pragma once

#include "zqbchwcx/platform/Surface.h"
#include "zqbchwcx/qt/PixelGrid.h"
#include "zqbchwcx/qt/TextCells.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QRect>

#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace zqbchwcx::qt {

/// A picture that keeps what is drawn on it, in device pixels of one ratio.
class PersistentPicture : public Surface {
public:
    explicit PersistentPicture(Size size, double ratio);
    ~PersistentPicture() override;

    /// Told of every change, in device pixels.
    void OnChanged(std::function<void(const QRect&)> handler) { mOnChanged = std::move(handler); }

    Size LogicalSize() const { return mSize; }
    double Ratio() const { return mGrid.Ratio(); }
    const QImage& Pixels() const { return mImage; }
    const QColor& Background() const { return mBackground; }

    /// What was drawn stays at its place; what is new has the background colour.
    void Resize(Size size);
    /// What was drawn is scaled, until it is drawn anew.
    void Ratio(double ratio);
    void Font(const QFont& font);
    /// Sets the background and erases the picture with it.
    void BackColor(OleColor color);

    void FillBox(const Rect& rect, OleColor color) override;
    void DrawLine(Point from, Point to, OleColor color) override;
    void FillTriangle(const Rect& square, Corner corner, OleColor color) override;
    void DrawCenteredText(std::string_view text, const Rect& box, FontWeight weight, OleColor color) override;
    void DrawLeftText(std::string_view text, const Rect& box, OleColor color) override;
    void DrawListImage(const ImageList& list, std::string_view key, Point at, DrawStyle style) override;
    void DrawImage(const Image& image, Point at, DrawStyle style) override;
    void DrawFocusRect(const Rect& rect) override;

private:
    QPainter& Painter();
    void Replace(QImage image);
    void Fill(const Rect& rect, const QColor& color);
    void Changed(const QRect& device);
    /// The colour as it is drawn on this background; a mark or text in a colour that can be told from it.
    const QColor& Translate(OleColor color);

    Size mSize;
    PixelGrid mGrid;
    QImage mImage;
    /// Open between drawing calls: opening one costs more than most of them.
    std::unique_ptr<QPainter> mPainter;
    OleColor mBackColor = vxColorWindowBackground;
    QColor mBackground; ///< that colour as it is drawn
    /// The colours as translated for this background and the palette of that key.
    std::vector<std::pair<OleColor, QColor>> mcolTranslated;
    qint64 mPaletteKey = 0;
    QFont mFont;
    TextCells mTexts;
    std::function<void(const QRect&)> mOnChanged;
};

} // namespace zqbchwcx::qt
