#pragma once

#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/qt/PixelGrid.h"

#include <QWidget>

#include <optional>

class QPainter;

namespace zqbchwcx::qt {

/// The window of a shape or frame: filled with one system colour, out of the way of the mouse.
class ShapeWidget : public QWidget {
    Q_OBJECT
public:
    ShapeWidget(QWidget& parent, const QString& name, const Rect& rect, OleColor color);

    void Color(OleColor color);
    /// Makes it a slope that is this high at its right end, in logical pixels.
    void Slope(int rightHeight);
    /// Fills the area, which stands for the window in device pixels: with the slope, or wholly where the ratio leaves
    /// no room for one.
    void Paint(QPainter& painter, const QRect& area, double ratio) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor FillColor() const;

    OleColor mColor;
    std::optional<int> mRightHeight;
};

} // namespace zqbchwcx::qt
