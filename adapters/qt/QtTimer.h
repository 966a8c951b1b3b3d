#pragma once

#include "zqbchwcx/platform/Timer.h"

#include <QTimer>

#include <algorithm>
#include <utility>

namespace zqbchwcx::qt {

class QtTimer : public Timer {
public:
    QtTimer()
    {
        mTimer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this] {
            if (const auto handler = mOnTimer) handler();
        });
    }

    void Interval(std::int32_t lMilliseconds) override { mTimer.setInterval(std::max(lMilliseconds, 1)); }
    bool Enabled() const override { return mTimer.isActive(); }
    void Enabled(bool bEnabled) override
    {
        if (bEnabled) mTimer.start();
        else mTimer.stop();
    }
    void OnTimer(std::function<void()> handler) override { mOnTimer = std::move(handler); }

private:
    QTimer mTimer;
    std::function<void()> mOnTimer;
};

} // namespace zqbchwcx::qt
