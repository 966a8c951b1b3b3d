#pragma once

#include "zqbchwcx/platform/SysInfo.h"
#include "zqbchwcx/qt/ControlWidget.h"

#include <QApplication>
#include <QObject>
#include <QPointer>
#include <QStyle>

#include <utility>

namespace zqbchwcx::qt {

class QtSysInfo : public SysInfo {
public:
    explicit QtSysInfo(const ControlWidget& control)
        : mConnection(QObject::connect(&control, &ControlWidget::AppearanceChanged, &mContext,
                                       [this] {
                                           if (const auto handler = mOnChanged) handler();
                                       })),
          mMetricsConnection(QObject::connect(&control, &ControlWidget::MetricsChanged, &mContext,
                                              [this] {
                                                  if (const auto handler = mOnSetting)
                                                      handler(vxSettingNonClientMetrics);
                                              })),
          mControl(&control)
    {
    }

    void OnSysColorsChanged(std::function<void()> handler) override { mOnChanged = std::move(handler); }
    void OnSettingChanged(std::function<void(std::int32_t)> handler) override { mOnSetting = std::move(handler); }
    std::int32_t ScrollBarSize() const override
    {
        const QStyle& style = mControl ? *mControl->style() : *QApplication::style();
        return style.pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, mControl);
    }

private:
    std::function<void()> mOnChanged;
    std::function<void(std::int32_t)> mOnSetting;
    QObject mContext;
    QMetaObject::Connection mConnection;
    QMetaObject::Connection mMetricsConnection;
    QPointer<const ControlWidget> mControl;
};

} // namespace zqbchwcx::qt
