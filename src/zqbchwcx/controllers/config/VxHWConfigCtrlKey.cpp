#include "zqbchwcx/controllers/config/VxHWConfigCtrlKey.h"

#include "zqbchwcx/controllers/SelectionSteps.h"
#include "zqbchwcx/foundation/Brackets.h"
#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/model/VxHWModelFactory.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"

namespace zqbchwcx {
namespace {

constexpr std::int32_t TextDelete = 4002;
constexpr std::int32_t TextCut = 4003;
constexpr std::int32_t TextPaste = 4005;

} // namespace

VxHWConfigCtrlKey::VxHWConfigCtrlKey() noexcept : ConfigKeyController("VxHWConfigCtrlKey") {}

void VxHWConfigCtrlKey::CursorKeyDown(std::int32_t lNewPosition, std::int16_t nShift) noexcept
{
    CursorKey(lNewPosition, nShift);
}

void VxHWConfigCtrlKey::SpaceKeyDown(std::int16_t nShift) noexcept
{
    SpaceKey(nShift);
}

void VxHWConfigCtrlKey::Delete() noexcept
{
    constexpr std::string_view Procedure = "IVxHWKeyInputController_Delete";
    RunAsCommand(TextDelete, Procedure, [&] {
        if (SelHandler()->IsModuleInSelection()) DeleteSelected(Procedure);
    });
}

void VxHWConfigCtrlKey::Cut() noexcept
{
    constexpr std::string_view Procedure = "IVxHWKeyInputController_Cut";
    RunAsCommand(TextCut, Procedure, [&] {
        // What did not reach the clipboard must not be lost.
        if (SelHandler()->SetSelectionToClipboard()) DeleteSelected(Procedure);
    });
}

void VxHWConfigCtrlKey::Copy() noexcept
{
    CopySelection();
}

void VxHWConfigCtrlKey::Paste() noexcept
{
    constexpr std::string_view Procedure = "IVxHWKeyInputController_Paste";
    RunAsCommand(TextPaste, Procedure, [&] {
        const auto oStation = Station();
        const auto oModules = oStation->ClipboardModules();
        if (G_Require(oModules, "The clipboard's collection of modules")->Count() == 0) return;
        const std::int32_t lFocus = SelHandler()->FocusPosition();
        if (!oStation->CanBePlaced(lFocus, oModules, false, nullptr)) return;

        const DrawingOff drawingOff(oStation, className(), Procedure);
        const auto oPlaces = G_ServiceRoot().modelFactory->CreateRackPlaces();
        oStation->PlaceModules(lFocus, oModules, oPlaces);
        G_SelectPlaces(SelHandler(), oPlaces);
    });
}

void VxHWConfigCtrlKey::DeleteSelected(std::string_view procedureName)
{
    const DrawingOff drawingOff(Station(), className(), procedureName);
    Station()->DeleteModules(G_SelPlaces(SelHandler()));
}

} // namespace zqbchwcx
