#include "zqbchwcx/controllers/config/VxHWConfigROCtrlKey.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

namespace zqbchwcx {

void VxHWConfigROCtrlKey::CursorKeyDown(std::int32_t lNewPosition, std::int16_t /*nShift*/) noexcept
{
    G_Trap(className(), "IVxHWKeyInputController_CursorKeyDown", [&] {
        SelectPosition(lNewPosition);
        const auto oHandler = SelHandler();
        oHandler->FocusPosition(lNewPosition);
        oHandler->ShiftSelPosition(oHandler->FocusPosition());
    });
}

} // namespace zqbchwcx
