#pragma once

#include "zqbchwcx/views/shared/PlaceMenu.h"
#include "zqbchwcx/views/shared/RedrawGate.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace zqbchwcx {

/// Turns keys into calls of the key controller.
class KeyInput {
public:
    /// Where a cursor key leads from the focus, or nothing; `bFine` visits gaps as well as places.
    using CursorTarget = std::function<std::optional<std::int32_t>(
        const VxHWStation& oStation, std::int32_t lFocus, std::int16_t nKeyCode, std::int16_t nShift, bool bFine)>;

    KeyInput(const ViewContext& context, PlaceMenu& menu, RedrawGate& gate, CursorTarget cursorTarget);

    void KeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept;
    void KeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept;

private:
    void P_CursorKeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept;

    const ViewContext& mContext;
    PlaceMenu& mMenu;
    RedrawGate& mGate;
    CursorTarget mCursorTarget;
    /// Shift was held when F10 went down: whichever of the two is released first, the menu opens.
    bool mbMenuKeyDown = false;
};

} // namespace zqbchwcx
