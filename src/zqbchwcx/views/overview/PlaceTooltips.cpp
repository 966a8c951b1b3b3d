#include "zqbchwcx/views/overview/PlaceTooltips.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWCompareService.h"
#include "zqbchwcx/foundation/model/VxHWDiagService.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/views/shared/CompareTexts.h"
#include "zqbchwcx/views/shared/DiagTexts.h"

namespace zqbchwcx {
namespace {

constexpr std::int32_t TextPlaceCanBeFilled = 6100;

} // namespace

void PlaceTooltips::Connect(std::intptr_t hWnd) noexcept
{
    G_Trap(mContext.className, "P_SetTooltips", [&] {
        moConnection.reset();
        moConnection = G_ServiceRoot().toolkit->GetTooltipService().Connect(hWnd, *this);
    });
}

Tooltip PlaceTooltips::GetTooltip(Point at) noexcept
{
    Tooltip tooltip;
    G_Trap(mContext.className, "moTTCallback_GetTooltip", [&] {
        if (!mContext.oStation || mContext.IsDragActive()) return;
        const PositionInfo position = G_PositionInfo(mLayout.PositionAt(at));
        // The view shows four racks of eleven places, whatever the station has of them.
        if (position.eType != vxPositionPlace || !G_Exists(mContext.oStation, position)) return;
        std::string text = TextOf(mContext.Place(position.lRack, position.lNumber));
        if (!text.empty()) tooltip = {std::move(text), mLayout.PlaceRect(position.lRack, position.lNumber)};
    });
    return tooltip;
}

std::string PlaceTooltips::TextOf(const VxHWRackPlacePtr& oPlace) const
{
    switch (mContext.eStyle) {
    case vxStyleHWCompare:
        return P_GetTooltipHWCompare(oPlace);
    case vxStyleHWConfig:
        return P_GetTooltipHWConfiguration(oPlace);
    case vxStyleHWDiag:
        return P_GetTooltipHWDiagnostics(oPlace);
    }
    return {};
}

std::string PlaceTooltips::P_GetTooltipHWConfiguration(const VxHWRackPlacePtr& oPlace) const noexcept
{
    std::string text;
    G_Trap(mContext.className, "P_GetTooltipHWConfiguration", [&] {
        const auto oModule = oPlace->Module();
        if (!oModule->IsEmpty()) text = mContext.Station()->ModuleTooltip(oModule);
        else if (mContext.bLocked) return;
        else if (oPlace->Usability() == vxPlaceActive) text = mTexts->Text(TextPlaceCanBeFilled);
        else text = mContext.Station()->EmptyPlaceTooltip(oPlace);
    });
    return text;
}

std::string PlaceTooltips::P_GetTooltipHWDiagnostics(const VxHWRackPlacePtr& oPlace) const noexcept
{
    std::string text;
    G_Trap(mContext.className, "P_GetTooltipHWDiagnostics", [&] {
        if (oPlace->Module()->IsEmpty()) return;
        const auto oDiagService = G_Require(mContext.oDiagService, "The diagnostics service");
        text = DiagTexts::Description(*oDiagService, oPlace, *mTexts, DiagTexts::NoText);
    });
    return text;
}

std::string PlaceTooltips::P_GetTooltipHWCompare(const VxHWRackPlacePtr& oPlace) const noexcept
{
    std::string text;
    G_Trap(mContext.className, "P_GetTooltipHWCompare", [&] {
        const auto oCompareService = G_Require(mContext.oCompareService, "The compare service");
        const std::int32_t lResult = oCompareService->PlaceResult(oPlace);
        if (lResult < vxCompareEqual || lResult > vxCompareParametersDiffer2) return;
        const std::int32_t lTextId = CompareTexts::ResultText(lResult, oCompareService->CompareType());
        if (lTextId != 0) G_AppendLine(text, mTexts->Text(lTextId));
        G_AppendLine(text, oCompareService->PlaceText(oPlace));
    });
    return text;
}

} // namespace zqbchwcx
