#include "zqbchwcx/controllers/config/ConfigKeyController.h"

#include "zqbchwcx/controllers/Modifiers.h"
#include "zqbchwcx/controllers/SelectionSteps.h"
#include "zqbchwcx/foundation/Brackets.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"

namespace zqbchwcx {
namespace {

constexpr std::int32_t TextCopy = 4004;
constexpr std::int32_t TextEditParameters = 4006;

} // namespace

ConfigKeyController::ConfigKeyController(std::string_view className) noexcept
    : StationController(className), moTexts(className)
{
}

void ConfigKeyController::KeyReturn() noexcept
{
    RunAsAction(TextEditParameters, "IVxHWKeyInputController_KeyReturn", [&] {
        const auto oSelPlaces = G_SelPlaces(SelHandler());
        for (const auto& oPlace : oSelPlaces) {
            const auto oModule = oPlace->Module();
            if (oModule->IsEmpty() || !oModule->HasParamDialog()) continue;
            Station()->OpenModuleParamDialog(oPlace);
            return;
        }
    });
}

void ConfigKeyController::CursorKey(std::int32_t lNewPosition, std::int16_t nShift) noexcept
{
    G_Trap(className(), "IVxHWKeyInputController_CursorKeyDown", [&] {
        const auto oHandler = SelHandler();
        oHandler->FocusPosition(lNewPosition);
        const Modifiers modifiers = G_Modifiers(nShift);
        if (modifiers == Modifiers::None) {
            SelectPosition(lNewPosition);
            oHandler->ShiftSelPosition(oHandler->FocusPosition());
        } else if (modifiers == Modifiers::Shift) {
            G_SelectFromAnchor(oHandler, oHandler->FocusPosition());
        }
    });
}

void ConfigKeyController::SpaceKey(std::int16_t nShift) noexcept
{
    G_Trap(className(), "IVxHWKeyInputController_SpaceKeyDown", [&] {
        const auto oHandler = SelHandler();
        const PositionInfo focus = G_PositionInfo(oHandler->FocusPosition());
        if (focus.eType != vxPositionPlace) return;
        const auto oPlace = G_PlaceByNumber(Station(), focus.lRack, focus.lNumber);
        const auto oSelPlaces = G_SelPlaces(oHandler);
        switch (G_Modifiers(nShift)) {
        case Modifiers::None:
            if (!oSelPlaces->Contains(oPlace)) oSelPlaces->Add(oPlace);
            break;
        case Modifiers::Shift:
            return G_SelectFromAnchor(oHandler, oHandler->FocusPosition());
        case Modifiers::Ctrl:
            G_ToggleInSelection(oHandler, oPlace);
            break;
        case Modifiers::Other:
            break;
        }
        oHandler->SelChangeComplete();
    });
}

void ConfigKeyController::CopySelection() noexcept
{
    RunAsCommand(TextCopy, "IVxHWKeyInputController_Copy", [&] { SelHandler()->SetSelectionToClipboard(); });
}

void ConfigKeyController::SelectPosition(std::int32_t lPosition) const
{
    const PositionInfo info = G_PositionInfo(lPosition);
    const auto oSelPlaces = G_SelPlaces(SelHandler());
    oSelPlaces->Clear();
    if (info.eType == vxPositionPlace) oSelPlaces->Add(G_PlaceByNumber(Station(), info.lRack, info.lNumber));
    SelHandler()->SelChangeComplete();
}

void ConfigKeyController::RunAsAction(std::int32_t lTextId, std::string_view procedureName,
                                      const std::function<void()>& body) noexcept
{
    G_Trap(className(), procedureName, [&] {
        const UserAction action(moTexts->Text(lTextId), className(), procedureName);
        G_Trap(className(), procedureName, body);
    });
}

void ConfigKeyController::RunAsCommand(std::int32_t lTextId, std::string_view procedureName,
                                       const std::function<void()>& body) noexcept
{
    RunAsAction(lTextId, procedureName, [&] {
        const WaitCursor waitCursor;
        G_Trap(className(), procedureName, body);
    });
}

} // namespace zqbchwcx
