#include "zqbchwcx/selection/EditCommands.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"

namespace zqbchwcx {
namespace {

bool CanPaste(const VxHWStationPtr& oStation, std::int32_t lFocus)
{
    const auto oModules = oStation->ClipboardModules();
    return oModules->Count() > 0 && oStation->CanBePlaced(lFocus, oModules, false, nullptr);
}

bool IsEditableModuleInSelection(const VxHWSelectionHandler& selection)
{
    for (const auto& oPlace : selection.SelPlaces()) {
        const auto oModule = oPlace->Module();
        if (!oModule->IsEmpty() && oModule->HasParamDialog()) return true;
    }
    return false;
}

} // namespace

EditCommands G_PossibleSelectionCommands(std::string_view className, const VxHWStationPtr& oStation,
                                         const VxHWSelectionHandlerPtr& oSelHandler) noexcept
{
    EditCommands possible;
    G_Trap(className, "P_IsEditableModuleInSelection", [&] {
        const auto oSelection = G_Require(oSelHandler, "The selection handler");
        possible.bEditModuleParams = IsEditableModuleInSelection(*oSelection);
    });
    G_Trap(className, "P_PossibleEditCommands", [&] {
        const auto oSelection = G_Require(oSelHandler, "The selection handler");
        const auto oKept = G_Require(oStation, "The station");
        possible.bCopy = oSelection->IsModuleInSelection() && oKept->DisplayMode() == vxDisplayModeOffline;
        possible.bCut = possible.bDelete = possible.bCopy && !oKept->IsReadOnly();
    });
    return possible;
}

EditCommands G_PossibleEditCommands(std::string_view className, const VxHWStationPtr& oStation,
                                    const VxHWSelectionHandlerPtr& oSelHandler) noexcept
{
    EditCommands possible = G_PossibleSelectionCommands(className, oStation, oSelHandler);
    G_Trap(className, "P_PossibleEditCommands", [&] {
        const auto oSelection = G_Require(oSelHandler, "The selection handler");
        const auto oKept = G_Require(oStation, "The station");
        possible.bPaste = !oKept->IsReadOnly() && CanPaste(oKept, oSelection->FocusPosition());
    });
    return possible;
}

} // namespace zqbchwcx
