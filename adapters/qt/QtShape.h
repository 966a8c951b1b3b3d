#pragma once

#include "zqbchwcx/platform/Shape.h"
#include "zqbchwcx/qt/ShapeWidget.h"

#include <QPointer>

namespace zqbchwcx::qt {

/// A shape, or what a frame shares with one, as the views see it: `Interface` is Shape or Frame. Its window ends with
/// it.
template <class Interface>
class QtShape : public Interface {
public:
    explicit QtShape(ShapeWidget& widget) : mWidget(&widget) {}
    ~QtShape() override { delete mWidget.data(); }
    QtShape(const QtShape&) = delete;
    QtShape& operator=(const QtShape&) = delete;

    Rect Bounds() const override
    {
        return mWidget ? MakeRect(mWidget->x(), mWidget->y(), mWidget->width(), mWidget->height()) : Rect{};
    }
    void Move(const Rect& rect) override
    {
        if (mWidget) mWidget->setGeometry(rect.left, rect.top, rect.width(), rect.height());
    }
    bool Visible() const override { return mWidget && !mWidget->isHidden(); }
    void Visible(bool bVisible) override
    {
        if (mWidget) mWidget->setVisible(bVisible);
    }
    void Slope(std::int32_t lRightHeight) override
    {
        if (mWidget) mWidget->Slope(lRightHeight);
    }

protected:
    QPointer<ShapeWidget> mWidget;
};

class QtFrame : public QtShape<Frame> {
public:
    using QtShape::QtShape;

    void BackColor(OleColor color) override
    {
        if (mWidget) mWidget->Color(color);
    }
};

} // namespace zqbchwcx::qt
