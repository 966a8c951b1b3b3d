#include "zqbchwcx/controllers/config/VxHWConfigCtrlMouse.h"

#include "zqbchwcx/controllers/Modifiers.h"
#include "zqbchwcx/controllers/SelectionSteps.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"

namespace zqbchwcx {
namespace {

/// What is left of a position without its rack: the element code.
constexpr std::int32_t ElementCode(std::int32_t lPosition)
{
    return lPosition - vxRackFactor * (lPosition / vxRackFactor);
}

} // namespace

VxHWConfigCtrlMouse::VxHWConfigCtrlMouse() noexcept : VxHWConfigCtrlMouse("VxHWConfigCtrlMouse") {}

VxHWConfigCtrlMouse::VxHWConfigCtrlMouse(std::string_view className) noexcept : StationController(className) {}

bool VxHWConfigCtrlMouse::CanSelectByRubberBand() const noexcept
{
    return true;
}

void VxHWConfigCtrlMouse::DblClick(std::int32_t lPosition) noexcept
{
    G_Trap(className(), "IVxHWMouseInputController_DblClick", [&] {
        const PositionInfo clicked = G_PositionInfo(lPosition);
        if (clicked.eType != vxPositionGap && clicked.eType != vxPositionPlace) return;
        const auto oStation = Station();
        if (!G_Exists(oStation, clicked)) return;
        const auto oPlace = G_PlaceByNumber(oStation, clicked.lRack, G_PlaceNumberAt(clicked));
        const auto oModule = oPlace->Module();
        if (!oModule->IsEmpty() && oModule->HasParamDialog()) oStation->OpenModuleParamDialog(oPlace);
    });
}

void VxHWConfigCtrlMouse::MouseDown(std::int32_t lPosition, std::int16_t nButton, std::int16_t nShift) noexcept
{
    G_Trap(className(), "IVxHWMouseInputController_MouseDown", [&] {
        if (nButton != vxButtonLeft && nButton != vxButtonRight) return;
        mlMouseDownPosition = lPosition;
        const PositionInfo pressed = G_PositionInfo(lPosition);
        if (pressed.eType == vxPositionNone) {
            if (nShift == 0) G_ClearSelection(SelHandler());
            return;
        }
        if (!G_IsPresent(Station(), pressed)) return;

        const Modifiers modifiers = G_Modifiers(nShift);
        if (modifiers == Modifiers::Other) return;
        if (pressed.eType == vxPositionRack) return P_MouseDownOnRack(pressed);
        if (modifiers == Modifiers::Shift) return P_MouseDownShift(pressed);
        // With Ctrl the release decides, so that a multiple selection can be dragged as a copy.
        if (modifiers == Modifiers::Ctrl) return;
        if (pressed.eType == vxPositionGap) P_MouseDownOnGap(pressed);
        else P_MouseDownOnPlace(pressed);
    });
}

void VxHWConfigCtrlMouse::MouseUp(std::int32_t /*lPosition*/, std::int16_t nButton, std::int16_t nShift) noexcept
{
    G_Trap(className(), "IVxHWMouseInputController_MouseUp", [&] {
        if (nButton != vxButtonLeft) return;
        const PositionInfo pressed = G_PositionInfo(mlMouseDownPosition);
        if (pressed.eType == vxPositionNone) return;
        if (!G_IsPresent(Station(), pressed)) return;
        if (pressed.eType == vxPositionRack) return;

        const bool bGap = pressed.eType == vxPositionGap;
        const Modifiers modifiers = G_Modifiers(nShift);
        if (modifiers == Modifiers::None) {
            if (bGap) P_MouseUpOnGap(pressed);
            else P_MouseUpOnPlace(pressed);
        } else if (modifiers == Modifiers::Ctrl) {
            if (bGap) P_MouseUpCtrlOnGap(pressed);
            else P_MouseUpCtrlOnPlace(pressed);
        }
    });
}

void VxHWConfigCtrlMouse::P_MouseDownOnGap(const PositionInfo& pressed) noexcept
{
    G_Trap(className(), "P_MouseDownOnGap", [&] {
        if (pressed.lNumber == 0 || !IsSelected(pressed)) G_ClearSelection(SelHandler());
        FocusAndAnchor(pressed);
    });
}

void VxHWConfigCtrlMouse::P_MouseDownOnPlace(const PositionInfo& pressed) noexcept
{
    G_Trap(className(), "P_MouseDownOnPlace", [&] {
        // A press on a selected place keeps a multiple selection, so that it can be dragged.
        const auto oPlace = PlaceOf(pressed);
        if (!G_SelPlaces(SelHandler())->Contains(oPlace)) G_SelectPlace(SelHandler(), oPlace);
        FocusAndAnchor(pressed);
    });
}

void VxHWConfigCtrlMouse::P_MouseDownOnRack(const PositionInfo& pressed) noexcept
{
    G_Trap(className(), "P_MouseDownOnRack", [&] {
        const auto oHandler = SelHandler();
        oHandler->SelectRack(G_RackByNumber(Station(), pressed.lRack));
        oHandler->SelChangeComplete();
        oHandler->FocusPosition(G_RackPosition(pressed.lRack) + ElementCode(oHandler->FocusPosition()));
        oHandler->ShiftSelPosition(oHandler->FocusPosition());
    });
}

void VxHWConfigCtrlMouse::P_MouseDownShift(const PositionInfo& pressed) noexcept
{
    G_Trap(className(), "P_MouseDownShift", [&] {
        const auto oHandler = SelHandler();
        G_SelPlaces(oHandler)->Clear();
        const std::int32_t lAnchor = oHandler->ShiftSelPosition();
        if (pressed.lRack != lAnchor / vxRackFactor)
            oHandler->ShiftSelPosition(ElementCode(lAnchor) + G_RackPosition(pressed.lRack));
        oHandler->SelectRange(oHandler->ShiftSelPosition(), G_Position(pressed));
        oHandler->SelChangeComplete();
        oHandler->FocusPosition(G_Position(pressed));
    });
}

void VxHWConfigCtrlMouse::P_MouseUpOnGap(const PositionInfo& pressed) noexcept
{
    G_Trap(className(), "P_MouseUpOnGap", [&] {
        if (pressed.lNumber > 0 && IsSelected(pressed)) G_ClearSelection(SelHandler());
    });
}

void VxHWConfigCtrlMouse::P_MouseUpOnPlace(const PositionInfo& pressed) noexcept
{
    G_Trap(className(), "P_MouseUpOnPlace", [&] {
        const auto oSelPlaces = G_SelPlaces(SelHandler());
        const auto oPlace = PlaceOf(pressed);
        if (oSelPlaces->Contains(oPlace) && oSelPlaces->Count() >= 2) G_SelectPlace(SelHandler(), oPlace);
    });
}

void VxHWConfigCtrlMouse::P_MouseUpCtrlOnGap(const PositionInfo& pressed) noexcept
{
    G_Trap(className(), "P_MouseUpCtrlOnGap", [&] {
        if (IsSelectionInOtherRack(pressed.lRack)) G_ClearSelection(SelHandler());
        FocusAndAnchor(pressed);
    });
}

void VxHWConfigCtrlMouse::P_MouseUpCtrlOnPlace(const PositionInfo& pressed) noexcept
{
    G_Trap(className(), "P_MouseUpCtrlOnPlace", [&] {
        const auto oHandler = SelHandler();
        if (IsSelectionInOtherRack(pressed.lRack)) G_SelPlaces(oHandler)->Clear();
        G_ToggleInSelection(oHandler, PlaceOf(pressed));
        oHandler->SelChangeComplete();
        FocusAndAnchor(pressed);
    });
}

VxHWRackPlacePtr VxHWConfigCtrlMouse::PlaceOf(const PositionInfo& pressed) const
{
    return G_PlaceByNumber(Station(), pressed.lRack, pressed.lNumber);
}

bool VxHWConfigCtrlMouse::IsSelected(const PositionInfo& pressed) const
{
    return G_SelPlaces(SelHandler())->Contains(PlaceOf(pressed));
}

void VxHWConfigCtrlMouse::FocusAndAnchor(const PositionInfo& pressed) const
{
    G_FocusAndAnchor(SelHandler(), G_Position(pressed));
}

bool VxHWConfigCtrlMouse::IsSelectionInOtherRack(std::int32_t lRack) const
{
    const auto oSelPlaces = G_SelPlaces(SelHandler());
    return oSelPlaces->Count() >= 1 && oSelPlaces->Item(1)->Rack()->Number() != lRack;
}

} // namespace zqbchwcx
