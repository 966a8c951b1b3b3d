#include "zqbchwcx/controllers/NavigationController.h"

#include "zqbchwcx/controllers/SelectionSteps.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

namespace zqbchwcx {

void NavigationMouse::DblClick(std::int32_t lPosition) noexcept
{
    G_Trap(className(), "IVxHWMouseInputController_DblClick", [&] {
        const PositionInfo clicked = G_PositionInfo(lPosition);
        if (clicked.eType != vxPositionPlace) return;
        const auto oStation = Station();
        if (!G_Exists(oStation, clicked)) return;
        Open(G_PlaceByNumber(oStation, clicked.lRack, clicked.lNumber), clicked.lSubPosition);
    });
}

void NavigationMouse::MouseDown(std::int32_t lPosition, std::int16_t /*nButton*/, std::int16_t /*nShift*/) noexcept
{
    G_Trap(className(), "IVxHWMouseInputController_MouseDown", [&] {
        const PositionInfo pressed = G_PositionInfo(lPosition);
        if (pressed.eType == vxPositionNone || !G_IsPresent(Station(), pressed)) return;
        const bool bGap = pressed.eType == vxPositionGap;
        G_FocusAndAnchor(SelHandler(), bGap ? G_PlacePosition(pressed.lRack, G_PlaceNumberAt(pressed)) : lPosition);
    });
}

void NavigationKey::CursorKeyDown(std::int32_t lNewPosition, std::int16_t /*nShift*/) noexcept
{
    G_Trap(className(), "IVxHWKeyInputController_CursorKeyDown", [&] {
        const auto oHandler = SelHandler();
        oHandler->FocusPosition(lNewPosition);
        oHandler->ShiftSelPosition(oHandler->FocusPosition());
    });
}

void NavigationKey::KeyReturn() noexcept
{
    G_Trap(className(), "IVxHWKeyInputController_KeyReturn", [&] {
        const PositionInfo focus = G_PositionInfo(SelHandler()->FocusPosition());
        if (focus.eType == vxPositionPlace) Open(G_PlaceByNumber(Station(), focus.lRack, focus.lNumber));
    });
}

} // namespace zqbchwcx
