#include "zqbchwcx/views/overview/KeyInput.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/platform/Input.h"

#include <utility>

namespace zqbchwcx {

KeyInput::KeyInput(const ViewContext& context, PlaceMenu& menu, RedrawGate& gate, CursorTarget cursorTarget)
    : mContext(context), mMenu(menu), mGate(gate), mCursorTarget(std::move(cursorTarget))
{
}

void KeyInput::KeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    G_Trap(mContext.className, "UserControl_KeyDown", [&] {
        mbMenuKeyDown = nKeyCode == vxKeyF10 && (nShift & vxShiftMask) != 0;
        switch (nKeyCode) {
        case vxKeyLeft:
        case vxKeyUp:
        case vxKeyRight:
        case vxKeyDown:
            P_CursorKeyDown(nKeyCode, nShift);
            break;
        case vxKeySpace:
            mContext.KeyCtrl()->SpaceKeyDown(nShift);
            break;
        case vxKeyDelete:
        case vxKeyClear:
            mContext.KeyCtrl()->Delete();
            break;
        case vxKeyReturn:
            mContext.KeyCtrl()->KeyReturn();
            break;
        default:
            break;
        }
    });
    mGate.CatchUp();
}

void KeyInput::KeyUp(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    G_Trap(mContext.className, "UserControl_KeyUp", [&] {
        if (nKeyCode != vxKeyApps && nKeyCode != vxKeyF10) return;
        const bool bWithShift = std::exchange(mbMenuKeyDown, false) || (nShift & vxShiftMask) != 0;
        if (nKeyCode == vxKeyApps || bWithShift) mMenu.Open(true);
    });
    mGate.CatchUp();
}

void KeyInput::P_CursorKeyDown(std::int16_t nKeyCode, std::int16_t nShift) noexcept
{
    G_Trap(mContext.className, "P_CursorKeyDown", [&] {
        const bool bFine = nShift == 0 && mContext.eStyle == vxStyleHWConfig && !mContext.bLocked;
        const auto oStation = mContext.Station();
        const auto lTarget = mCursorTarget(*oStation, mContext.FocusPosition(), nKeyCode, nShift, bFine);
        if (lTarget) mContext.KeyCtrl()->CursorKeyDown(*lTarget, nShift);
    });
}

} // namespace zqbchwcx
