#pragma once

#include "zqbchwcx/qt/ScrollButtonWidget.h"

#include <QPointer>

namespace zqbchwcx::qt {

/// A button, as the views see it. Its window ends with it, or before it with the parent window; every operation is
/// then without effect.
class QtButton : public Button {
public:
    explicit QtButton(ScrollButtonWidget& widget) : mWidget(&widget) {}
    ~QtButton() override { delete mWidget.data(); }
    QtButton(const QtButton&) = delete;
    QtButton& operator=(const QtButton&) = delete;

    void Events(ButtonEvents* receiver) override
    {
        if (mWidget) mWidget->Receiver(receiver);
    }
    bool Pressed() const override { return mWidget && mWidget->Pressed(); }
    void Pressed(bool bPressed) override
    {
        if (mWidget) mWidget->Pressed(bPressed);
    }
    void ArrowColor(OleColor color) override
    {
        if (mWidget) mWidget->ArrowColor(color);
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

private:
    QPointer<ScrollButtonWidget> mWidget;
};

} // namespace zqbchwcx::qt
