#pragma once

#include "app/export/PaperItem.h"
#include "zqbchwcx/platform/Shape.h"

#include <QColor>

namespace quillon_ed {

/// A filled rectangle.
class PaperShape : public zqbchwcx::Frame, public PaperItem {
public:
    PaperShape(PaperSite& site, const zqbchwcx::Rect& rect, const QColor& color);

    void Paint(QPainter& painter) const override;

    zqbchwcx::Rect Bounds() const override { return mRect; }
    void Move(const zqbchwcx::Rect& rect) override { mRect = rect; }
    bool Visible() const override { return mbVisible; }
    void Visible(bool bVisible) override { mbVisible = bVisible; }
    void BackColor(zqbchwcx::OleColor color) override;

private:
    zqbchwcx::Rect mRect;
    QColor mColor;
    bool mbVisible = true;
};

} // namespace quillon_ed
