#pragma once

#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/qt/PixelGrid.h"

#include <QWidget>

class QPainter;

namespace zqbchwcx::qt {

/// The window of a shape or frame: filled with one system colour, out of the way of the mouse.
class ShapeWidget : public QWidget {
    Q_OBJECT
public:
    ShapeWidget(QWidget& parent, const QString& name, const Rect& rect, OleColor color);

    QColor FillColor() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    OleColor mColor;
};

} // namespace zqbchwcx::qt
