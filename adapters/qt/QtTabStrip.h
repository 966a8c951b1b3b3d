#pragma once

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/platform/TabStrip.h"
#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/TabStripWidget.h"

#include <QPointer>

#include <algorithm>
#include <string>

namespace zqbchwcx::qt {

/// A tab strip, as the views see it. Its window, which has only the tabs, ends with it, or before it with the parent
/// window; every operation is then without effect. A tab that is not there is refused with VxError.
class QtTabStrip : public TabStrip {
public:
    QtTabStrip(TabStripWidget& widget, const Rect& rect) : mWidget(&widget) { Move(rect); }
    ~QtTabStrip() override
    {
        if (!mWidget) return;
        // It may end in the middle of an event of its window.
        mWidget->Receiver(nullptr);
        mWidget->hide();
        mWidget->setObjectName({});
        mWidget->deleteLater();
    }
    QtTabStrip(const QtTabStrip&) = delete;
    QtTabStrip& operator=(const QtTabStrip&) = delete;

    void Events(TabStripEvents* receiver) override
    {
        if (mWidget) mWidget->Receiver(receiver);
    }
    std::int32_t Count() const override { return mWidget ? mWidget->count() : 0; }
    void Caption(std::int32_t lTab, std::string_view caption) override
    {
        if (!IsThere(lTab)) return;
        QString text = ToQString(caption);
        mWidget->setAccessibleTabName(lTab, text);
        mWidget->setTabText(lTab, text.replace(u'&', QStringLiteral("&&")));
    }
    void TooltipText(std::int32_t lTab, std::string_view text) override
    {
        if (IsThere(lTab)) mWidget->setTabToolTip(lTab, ToolTipText(ToQString(text)));
    }
    bool Enabled(std::int32_t lTab) const override { return IsThere(lTab) && mWidget->isTabEnabled(lTab); }
    void Enabled(std::int32_t lTab, bool bEnabled) override
    {
        if (IsThere(lTab)) mWidget->EnableQuietly(lTab, bEnabled);
    }
    std::int32_t SelectedTab() const override { return mWidget ? mWidget->currentIndex() : -1; }
    void SelectedTab(std::int32_t lTab) override
    {
        if (IsThere(lTab)) mWidget->SelectQuietly(lTab);
    }
    void Move(const Rect& rect) override
    {
        mRect = rect;
        if (mWidget) mWidget->setGeometry(rect.left, rect.top, rect.width(), TabStripWidget::TabHeight);
    }
    Rect InnerRect() const override
    {
        return {mRect.left, std::min(mRect.top + TabStripWidget::TabHeight, mRect.bottom), mRect.right, mRect.bottom};
    }

private:
    bool IsThere(std::int32_t lTab) const
    {
        if (mWidget && (lTab < 0 || lTab >= mWidget->count()))
            throw VxError(vxErrorSubscript, "The tab strip has no tab " + std::to_string(lTab));
        return !mWidget.isNull();
    }

    QPointer<TabStripWidget> mWidget;
    Rect mRect;
};

} // namespace zqbchwcx::qt
