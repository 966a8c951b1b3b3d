#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace zqbchwcx {

/// A setting of the desktop, as `OnSettingChanged` tells it: sizes of what surrounds a window's content.
inline constexpr std::int32_t vxSettingNonClientMetrics = 42;

/// Tells of changes of the desktop's settings.
class SysInfo {
public:
    virtual ~SysInfo() = default;

    /// Called when the system colours, or the device pixel ratio of the control's window, have changed.
    virtual void OnSysColorsChanged(std::function<void()> handler) = 0;
    /// Called with the setting when one has changed.
    virtual void OnSettingChanged(std::function<void(std::int32_t lSetting)> handler) = 0;
    /// The width of a vertical scroll bar, in logical pixels.
    virtual std::int32_t ScrollBarSize() const = 0;
};
using SysInfoPtr = std::unique_ptr<SysInfo>;

} // namespace zqbchwcx
