#include "zqbchwcx/qt/GridDelegate.h"

#include "zqbchwcx/qt/DevicePainting.h"
#include "zqbchwcx/qt/GridModel.h"
#include "zqbchwcx/qt/QtImage.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPen>

#include <cmath>

namespace zqbchwcx::qt {
namespace {

constexpr double Half = 0.5;

QRect Inside(const QRect& rect, int margin)
{
    return rect.adjusted(margin, margin, -margin, -margin);
}

/// An unfilled frame within the rectangle.
void DrawFrame(QPainter& painter, const QRect& rect, int thickness, const QColor& color)
{
    painter.fillRect(rect.left(), rect.top(), rect.width(), thickness, color);
    painter.fillRect(rect.left(), rect.bottom() + 1 - thickness, rect.width(), thickness, color);
    painter.fillRect(rect.left(), rect.top(), thickness, rect.height(), color);
    painter.fillRect(rect.right() + 1 - thickness, rect.top(), thickness, rect.height(), color);
}

} // namespace

/// One cell's rectangle in device pixels, for as long as it is painted.
class GridDelegate::Painting {
public:
    Painting(const GridDelegate& self, QPainter& painter, const QRect& logical)
        : mSelf(self), mPainter(painter), mBefore(painter.transform()), mGrid(DeviceRatio(painter)),
          mThin(ThinLine(mGrid.Ratio()))
    {
        const QTransform toDevice = painter.deviceTransform();
        UseDevicePixels(painter, mGrid.Ratio());
        // Rounded on the device, not in the window: rows lie as what is beside the grid does.
        const auto edge = [&](double x, double y) {
            const QPointF device = toDevice.map(QPointF(x, y));
            const QPointF origin = painter.deviceTransform().map(QPointF(0, 0));
            return QPoint(int(std::floor(device.x() + Half)) - int(std::lrint(origin.x())),
                          int(std::floor(device.y() + Half)) - int(std::lrint(origin.y())));
        };
        const QPoint corner = edge(logical.x(), logical.y());
        const QPoint end = edge(logical.x() + logical.width(), logical.y() + logical.height());
        mBounds = {corner, end - QPoint(1, 1)};
        // The lines at the right and at the bottom belong to the cell.
        mCell = mBounds.adjusted(0, 0, -mThin, -mThin);
        self.mColors.Follow();
        self.mTexts.Font(self.mFont, mGrid.Ratio());
    }
    ~Painting() { mPainter.setTransform(mBefore); }
    Painting(const Painting&) = delete;
    Painting& operator=(const Painting&) = delete;

    void FillWithLines(const QColor& back, const QColor& right, const QColor& bottom)
    {
        mPainter.fillRect(mCell, back);
        mPainter.fillRect(mBounds.left(), mCell.bottom() + 1, mBounds.width(), mThin, bottom);
        mPainter.fillRect(mCell.right() + 1, mBounds.top(), mThin, mCell.height(), right);
    }

    void Text(const QString& text, CellAlignment alignment, const QColor& color, int down = 0)
    {
        const int padding = mGrid.Edge(alignment == CellAlignment::Centre ? 1 : Padding);
        mSelf.mTexts.Draw(mPainter, mCell.adjusted(padding, down, -padding, down), text, alignment, color);
    }

    void Picture(const Image& picture, const QColor& highlight)
    {
        const auto& image = dynamic_cast<const QtImage&>(picture);
        const QImage& pixels = image.At({}, mGrid, DrawStyle::Transparent, highlight);
        mPainter.drawImage(mCell.center() + QPoint(1, 1) - QPoint(pixels.width() / 2, pixels.height() / 2), pixels);
    }

    void Button(const QString& caption, bool bHovered, bool bPressed)
    {
        constexpr double EdgeShare = 0.38;
        constexpr double HoverShare = 0.12;
        constexpr double PressedShare = 0.22;
        const GridColors& colors = mSelf.mColors;
        QColor face = colors.button;
        if (bPressed) face = Mixed(face, colors.buttonText, PressedShare);
        else if (bHovered) face = Mixed(face, colors.highlight, HoverShare);
        const QColor edge =
            bHovered || bPressed ? colors.highlight : Mixed(colors.button, colors.buttonText, EdgeShare);
        const double half = mThin / 2.0;
        const double radius = 2 * mGrid.Ratio();
        const QRectF outline = QRectF(Inside(mCell, mThin)).adjusted(half, half, -half, -half);
        mPainter.setRenderHint(QPainter::Antialiasing);
        mPainter.setPen(QPen(edge, mThin));
        mPainter.setBrush(face);
        mPainter.drawRoundedRect(outline, radius, radius);
        mPainter.setRenderHint(QPainter::Antialiasing, false);
        Text(caption, CellAlignment::Centre, colors.buttonText, bPressed ? mThin : 0);
    }

    void FocusRing(bool bOnSelection)
    {
        const GridColors& colors = mSelf.mColors;
        // Two colours, so that it is seen on every background.
        DrawFrame(mPainter, mCell, mThin, colors.highlight);
        DrawFrame(mPainter, Inside(mCell, mThin), mThin, bOnSelection ? colors.highlightText : colors.highlight);
    }

private:
    const GridDelegate& mSelf;
    QPainter& mPainter;
    QTransform mBefore;
    PixelGrid mGrid;
    int mThin;
    QRect mBounds;
    QRect mCell;
};

int GridDelegate::WidthFor(const QString& text) const
{
    // Rounded up: a text is shortened as soon as a part of a pixel is missing.
    return static_cast<int>(std::ceil(QFontMetricsF(mFont).horizontalAdvance(text))) + 2 * Padding + 1;
}

bool GridDelegate::IsCutOff(const QString& text, int cellWidth) const
{
    return WidthFor(text) > cellWidth;
}

void GridDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto& content = static_cast<const GridModel*>(index.model())->Content();
    const GridCell cell = GridModel::CellOf(index);
    const GridCellContent& shown = content.Cell(cell);
    const bool bSelected = content.Row(cell.lRow).bSelected;
    const CellFormat look = content.Look(cell);

    Painting painting(*this, *painter, option.rect);
    const QColor back = bSelected ? mColors.highlight : mColors.Back(*look.backColor);
    constexpr double SelectedLineShare = 0.2;
    const QColor line = bSelected ? Mixed(back, mColors.highlightText, SelectedLineShare) : mColors.line;
    const bool bButton = look.kind == CellKind::PushButton && !shown.text.isEmpty();
    // The face of a button is the button's, not that of the cell behind it.
    painting.FillWithLines(bButton && !bSelected ? mColors.Back(content.backColor) : back, line, line);
    if (shown.picture) painting.Picture(*shown.picture, mColors.highlight);
    if (bButton) painting.Button(shown.text, mMarks.hovered == cell, mMarks.pressed == cell);
    else
        painting.Text(shown.text, *look.alignment,
                      bSelected ? mColors.highlightText : mColors.Text(*look.textColor, back));
    if (mMarks.bFocus && mMarks.current == cell) painting.FocusRing(bSelected);
}

void GridDelegate::PaintHeader(QPainter& painter, const QRect& rect, const GridColumn& column, bool bHovered) const
{
    constexpr double HoverShare = 0.1;
    Painting painting(*this, painter, rect);
    const QColor& line = mColors.headerLine;
    const QColor back = column.header.backColor ? mColors.Back(*column.header.backColor) : mColors.button;
    painting.FillWithLines(bHovered ? Mixed(back, mColors.highlight, HoverShare) : back, line, line);
    painting.Text(column.caption, column.header.alignment.value_or(CellAlignment::Left),
                  column.header.textColor ? mColors.Text(*column.header.textColor, back) : mColors.buttonText);
}

QSize GridDelegate::sizeHint(const QStyleOptionViewItem& /*option*/, const QModelIndex& index) const
{
    const QString& text = static_cast<const GridModel*>(index.model())->Content().Cell(GridModel::CellOf(index)).text;
    return {WidthFor(text), QFontMetrics(mFont).height()};
}

} // namespace zqbchwcx::qt
