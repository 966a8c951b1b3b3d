#pragma once

#include "zqbchwcx/platform/UserControl.h"
#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/UiFont.h"
#include "zqbchwcx/qt/WindowHandle.h"

#include <QPointer>

namespace zqbchwcx::qt {

/// A control window, as the views see it: `Interface` is UserControl or ChildControl. The window is owned by its
/// parent window; when it has ended, every operation is without effect.
template <class Interface>
class QtControl : public Interface {
public:
    explicit QtControl(ControlWidget& widget) : mWidget(&widget) {}

    ControlWidget* Widget() const { return mWidget; }

    void Events(UserControlEvents* receiver) override
    {
        if (mWidget) mWidget->Receiver(receiver);
    }
    std::intptr_t hWnd() const override { return HandleOf(mWidget.data()); }
    std::int32_t Width() const override { return mWidget ? mWidget->width() * vxTwipsPerPixel : 0; }
    std::int32_t Height() const override { return mWidget ? mWidget->height() * vxTwipsPerPixel : 0; }
    void Size(std::int32_t lWidth, std::int32_t lHeight) override
    {
        if (mWidget) mWidget->ResizeNow({lWidth / vxTwipsPerPixel, lHeight / vxTwipsPerPixel});
    }
    void Font(std::string_view family, double points) override
    {
        if (mWidget) mWidget->TextFont(UiFont(family, points));
    }

private:
    QPointer<ControlWidget> mWidget;
};

using QtUserControl = QtControl<UserControl>;

/// A control inside a control. Its window ends with it.
class QtChildControl : public QtControl<ChildControl> {
public:
    using QtControl::QtControl;
    ~QtChildControl() override { delete Widget(); }
    QtChildControl(const QtChildControl&) = delete;
    QtChildControl& operator=(const QtChildControl&) = delete;

    void Move(const Rect& rect) override
    {
        auto* widget = Widget();
        if (widget == nullptr) return;
        widget->move(rect.left, rect.top);
        widget->ResizeNow({rect.width(), rect.height()});
    }
};

} // namespace zqbchwcx::qt
