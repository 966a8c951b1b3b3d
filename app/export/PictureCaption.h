#pragma once

#include <QColor>
#include <QFont>
#include <QString>

class QPainter;
class QRectF;

namespace quillon_ed {

/// A text below a picture, as wide as the picture, in logical pixels. An empty one takes no room.
class PictureCaption {
public:
    PictureCaption(QString text, double width);

    double Height() const { return mHeight; }
    /// With its top-left corner at the origin.
    void Paint(QPainter& painter, const QColor& color) const;

private:
    QRectF TextBox(double height) const;

    QString mText;
    QFont mFont;
    double mWidth;
    double mHeight = 0;
};

} // namespace quillon_ed
