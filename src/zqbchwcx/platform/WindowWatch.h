#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace zqbchwcx {

/// Messages of a window, as spies and hooks report them.
enum : std::int32_t {
    vxMessageKillFocus = 8,
    vxMessageNonClientLeftDown = 161,
    vxMessageNonClientRightDown = 164,
    vxMessageNonClientMiddleDown = 167,
    vxMessageMouseMove = 512,
    vxMessageLeftDown = 513,
    vxMessageRightDown = 516,
    vxMessageMiddleDown = 519,
};

/// Watches another window of the same program; ends with the object, also in the middle of a report.
class WindowSpy {
public:
    virtual ~WindowSpy() = default;
};
using WindowSpyPtr = std::unique_ptr<WindowSpy>;
/// `hOther`: for a lost focus, the window that gets it; 0 for one of another program.
using WindowSpyHandler = std::function<void(std::int32_t lMessage, std::intptr_t hOther)>;

/// Sees the mouse of the whole system, whichever program it acts on; ends with the object, also in the middle of a
/// report.
class MouseHook {
public:
    virtual ~MouseHook() = default;
};
using MouseHookPtr = std::unique_ptr<MouseHook>;
/// `hWnd`: the window under the mouse; 0 for one of another program. A press outside the client areas of this program's
/// windows is a non-client one. A press on a window of this program is reported before that window gets it; one that
/// came before the hook was made is not reported.
using MouseHookHandler = std::function<void(std::int32_t lMessage, std::intptr_t hWnd)>;

} // namespace zqbchwcx
