#pragma once

#include "zqbchwcx/platform/Input.h"

#include <cstdint>

namespace zqbchwcx {

/// What the modifier keys ask for. Shift goes before the others, Ctrl before Alt.
enum class Modifiers { None, Shift, Ctrl, Other };

constexpr Modifiers G_Modifiers(std::int16_t nShift)
{
    if (nShift == 0) return Modifiers::None;
    if ((nShift & vxShiftMask) != 0) return Modifiers::Shift;
    return (nShift & vxCtrlMask) != 0 ? Modifiers::Ctrl : Modifiers::Other;
}

} // namespace zqbchwcx
