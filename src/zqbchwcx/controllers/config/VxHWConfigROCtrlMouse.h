#pragma once

#include "zqbchwcx/controllers/config/VxHWConfigCtrlMouse.h"

namespace zqbchwcx {

/// The mouse in read-only configuration mode. Nothing that the mouse does changes the configuration, so only the name
/// in its error reports differs.
class VxHWConfigROCtrlMouse : public VxHWConfigCtrlMouse {
public:
    VxHWConfigROCtrlMouse() noexcept : VxHWConfigCtrlMouse("VxHWConfigROCtrlMouse") {}
};

} // namespace zqbchwcx
