#include "zqbchwcx/views/diag/PanelContent.h"

#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWDiagService.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/views/shared/DiagTexts.h"

#include <algorithm>

namespace zqbchwcx {
namespace {

constexpr std::int32_t TextWithoutFailure = 2020;
/// Of the kind of station 0; the others follow.
constexpr std::int32_t TextStationKind = 2050;

constexpr std::int32_t ControllerRack = 0;
constexpr std::int32_t ControllerPlace = 2;

/// Every place holds its own part of a module that spans several.
constexpr const char* ModuleWidth = "1";

std::string OrNotAvailable(const std::string& text)
{
    return text.empty() ? "- - -" : text;
}

/// A new object each time: the host may know another controller by now.
ControllerInfoPtr P_GetVxPlcInfo(std::string_view className) noexcept
{
    return G_TrapValue(className, "P_GetVxPlcInfo", ControllerInfoPtr(),
                       [] { return G_ServiceRoot().objectFactory->CreateControllerInfo(); });
}

} // namespace

PanelContent PanelReader::Read(std::int32_t lFocus) const
{
    PanelContent content;
    const PositionInfo focus = G_PositionInfo(lFocus);
    if (!mContext.oStation || focus.eType == vxPositionNone || !G_Exists(mContext.oStation, focus)) return content;
    if (focus.eType == vxPositionRack) content.values[PanelField::Rack] = std::to_string(focus.lRack);
    else P_SetModuleInfo(content, mContext.Place(focus.lRack, G_PlaceNumberAt(focus)));
    return content;
}

void PanelReader::P_SetModuleInfo(PanelContent& content, const VxHWRackPlacePtr& oPlace) const noexcept
{
    G_Trap(mContext.className, "P_SetModuleInfo", [&] {
        content.values[PanelField::Rack] = std::to_string(oPlace->Rack()->Number());
        content.values[PanelField::Place] = std::to_string(oPlace->Number());
        const auto oModule = oPlace->Module();
        if (oModule->IsEmpty()) return;
        content.bHasModule = true;
        P_FillVersionInfoGrid(content, oPlace);
        content.values[PanelField::ModuleName] = oModule->Name();
        content.values[PanelField::SystemID] = Text(TextStationKind + mContext.Station()->StationKind());
        content.values[PanelField::Address] = OrNotAvailable(oModule->BasicAddressText());
        content.values[PanelField::ModuleWidth] = ModuleWidth;
        content.values[PanelField::Status] = Status(oPlace);
        const auto oDiagService = G_Require(mContext.oDiagService, "The diagnostics service");
        content.bHasDiagnosticInfo = oDiagService->HasDiagnosticInfo(oPlace, nullptr);
    });
}

void PanelReader::P_FillVersionInfoGrid(PanelContent& content, const VxHWRackPlacePtr& oPlace) const noexcept
{
    G_Trap(mContext.className, "P_FillVersionInfoGrid", [&] {
        content.versions = {{oPlace->Module()->OrderNumber(), OrNotAvailable({}), OrNotAvailable({})}};
        if (oPlace->Number() != ControllerPlace || oPlace->Rack()->Number() != ControllerRack) return;
        const auto oInfo = P_GetVxPlcInfo(mContext.className);
        if (!oInfo) return;
        std::size_t row = 0;
        for (const ControllerComponent& component : oInfo->Components()) {
            content.versions.resize(std::max(content.versions.size(), row + 1));
            content.versions[row].component = OrNotAvailable(component.name);
            content.versions[row++].version = OrNotAvailable(component.version);
        }
    });
}

std::string PanelReader::Status(const VxHWRackPlacePtr& oPlace) const
{
    const auto oDiagService = G_Require(mContext.oDiagService, "The diagnostics service");
    std::string status;
    for (const std::int32_t lText : DiagTexts::Failures(*oDiagService, oPlace, TextWithoutFailure))
        G_AppendLine(status, Text(lText));
    return status;
}

std::string PanelReader::Text(std::int32_t lText) const
{
    const auto found = mcolTexts.find(lText);
    return found == mcolTexts.end() ? std::string() : found->second;
}

} // namespace zqbchwcx
