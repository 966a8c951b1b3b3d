#pragma once

#include "zqbchwcx/platform/InfoControls.h"
#include "zqbchwcx/qt/InfoBoxWidget.h"
#include "zqbchwcx/qt/PanelWidget.h"
#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/QtUserControl.h"

#include <QLabel>
#include <QPointer>
#include <QPushButton>

#include <functional>
#include <utility>

namespace zqbchwcx::qt {

// What panels are made of, as the views see it. A window ends with its control, or before it with the parent window;
// every operation is then without effect.

inline Size ToSize(QSize size)
{
    return {size.width(), size.height()};
}

class QtPanel : public QtControl<Panel> {
public:
    explicit QtPanel(PanelWidget& widget) : QtControl(widget) {}
    ~QtPanel() override
    {
        auto* widget = Widget();
        if (widget == nullptr) return;
        // It may end in the middle of an event of a window in it.
        widget->hide();
        widget->setObjectName({});
        widget->deleteLater();
    }
    QtPanel(const QtPanel&) = delete;
    QtPanel& operator=(const QtPanel&) = delete;

    void Move(const Rect& rect) override
    {
        if (auto* widget = Widget()) widget->setGeometry(rect.left, rect.top, rect.width(), rect.height());
    }
};

class QtLabel : public Label {
public:
    explicit QtLabel(QLabel& widget) : mWidget(&widget) {}
    ~QtLabel() override { delete mWidget.data(); }
    QtLabel(const QtLabel&) = delete;
    QtLabel& operator=(const QtLabel&) = delete;

    void Caption(std::string_view caption) override
    {
        if (mWidget) mWidget->setText(ToQString(caption));
    }
    Size TextSize() const override { return mWidget ? ToSize(mWidget->sizeHint()) : Size(); }
    void Move(const Rect& rect) override
    {
        if (mWidget) mWidget->setGeometry(rect.left, rect.top, rect.width(), rect.height());
    }

private:
    QPointer<QLabel> mWidget;
};

class QtInfoBox : public InfoBox {
public:
    explicit QtInfoBox(InfoBoxWidget& widget) : mWidget(&widget) {}
    ~QtInfoBox() override { delete mWidget.data(); }
    QtInfoBox(const QtInfoBox&) = delete;
    QtInfoBox& operator=(const QtInfoBox&) = delete;

    void Name(std::string_view name) override
    {
        if (mWidget) mWidget->setAccessibleName(ToQString(name));
    }
    void Text(std::string_view text) override
    {
        if (mWidget) mWidget->ShowText(ToQString(text));
    }
    void BackColor(OleColor color) override
    {
        if (mWidget) mWidget->BackColor(color);
    }
    void Redraw() override
    {
        if (mWidget) mWidget->Redraw();
    }
    void Move(const Rect& rect) override
    {
        if (mWidget) mWidget->Move(rect);
    }

private:
    QPointer<InfoBoxWidget> mWidget;
};

class QtCommandButton : public CommandButton {
public:
    explicit QtCommandButton(QPushButton& widget) : mWidget(&widget)
    {
        QObject::connect(&widget, &QPushButton::clicked, &widget, [this] {
            // What the host opens may end the view, and the handler with it.
            if (const auto handler = mOnClick) handler();
        });
    }
    ~QtCommandButton() override
    {
        if (!mWidget) return;
        mWidget->disconnect();
        mWidget->hide();
        mWidget->setObjectName({});
        mWidget->deleteLater();
    }
    QtCommandButton(const QtCommandButton&) = delete;
    QtCommandButton& operator=(const QtCommandButton&) = delete;

    void Caption(std::string_view caption) override
    {
        if (!mWidget) return;
        QString text = ToQString(caption);
        mWidget->setAccessibleName(text);
        mWidget->setText(text.replace(u'&', QStringLiteral("&&")));
    }
    Size PreferredSize() const override { return mWidget ? ToSize(mWidget->sizeHint()) : Size(); }
    bool Enabled() const override { return mWidget && mWidget->isEnabled(); }
    void Enabled(bool bEnabled) override
    {
        if (mWidget) mWidget->setEnabled(bEnabled);
    }
    void OnClick(std::function<void()> handler) override { mOnClick = std::move(handler); }
    void Move(const Rect& rect) override
    {
        if (mWidget) mWidget->setGeometry(rect.left, rect.top, rect.width(), rect.height());
    }
    std::intptr_t hWnd() const override { return HandleOf(mWidget.data()); }

private:
    QPointer<QPushButton> mWidget;
    std::function<void()> mOnClick;
};

} // namespace zqbchwcx::qt
