#pragma once

#include "zqbchwcx/platform/SysInfo.h"
#include "zqbchwcx/qt/ControlWidget.h"

#include <QObject>

#include <utility>

namespace zqbchwcx::qt {

class QtSysInfo : public SysInfo {
public:
    explicit QtSysInfo(const ControlWidget& control)
        : mConnection(QObject::connect(&control, &ControlWidget::AppearanceChanged, &mContext, [this] {
              if (const auto handler = mOnChanged) handler();
          }))
    {
    }

    void OnSysColorsChanged(std::function<void()> handler) override { mOnChanged = std::move(handler); }

private:
    std::function<void()> mOnChanged;
    QObject mContext;
    QMetaObject::Connection mConnection;
};

} // namespace zqbchwcx::qt
