#pragma once

#include "zqbchwcx/platform/ScrollBar.h"

#include <QPointer>
#include <QScrollBar>
#include <QSignalBlocker>

namespace zqbchwcx::qt {

/// A scroll bar, as the views see it. Its window ends with it, or before it with the parent window; every operation is
/// then without effect.
class QtScrollBar : public ScrollBar {
public:
    explicit QtScrollBar(QScrollBar& widget) : mWidget(&widget)
    {
        QObject::connect(&widget, &QScrollBar::valueChanged, &widget, [this](int) {
            if (mReceiver == nullptr) return;
            if (mWidget->isSliderDown()) mReceiver->Scroll();
            else mReceiver->Change();
        });
    }
    ~QtScrollBar() override { delete mWidget.data(); }
    QtScrollBar(const QtScrollBar&) = delete;
    QtScrollBar& operator=(const QtScrollBar&) = delete;

    void Events(ScrollBarEvents* receiver) override { mReceiver = receiver; }
    void Range(std::int32_t lMaximum, std::int32_t lPage) override
    {
        if (!mWidget) return;
        const QSignalBlocker silence(mWidget.data());
        mWidget->setRange(0, lMaximum);
        mWidget->setPageStep(lPage);
    }
    std::int32_t Value() const override { return mWidget ? mWidget->value() : 0; }
    void Value(std::int32_t lValue) override
    {
        if (!mWidget) return;
        const QSignalBlocker silence(mWidget.data());
        mWidget->setValue(lValue);
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
    QPointer<QScrollBar> mWidget;
    ScrollBarEvents* mReceiver = nullptr;
};

} // namespace zqbchwcx::qt
