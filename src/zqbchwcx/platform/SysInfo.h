#pragma once

#include <functional>
#include <memory>

namespace zqbchwcx {

/// Tells of changes of the desktop's settings.
class SysInfo {
public:
    virtual ~SysInfo() = default;

    /// Called when the system colours, or the device pixel ratio of the control's window, have changed.
    virtual void OnSysColorsChanged(std::function<void()> handler) = 0;
};
using SysInfoPtr = std::unique_ptr<SysInfo>;

} // namespace zqbchwcx
