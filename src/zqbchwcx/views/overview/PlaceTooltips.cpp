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
    return G_TrapValue(mContext.className, "moTTCallback_GetTooltip", Tooltip(), [&] {
        if (!mContext.oStation || mContext.IsDragActive()) return Tooltip();
        const PositionInfo position = G_PositionInfo(mLayout.PositionAt(at));
        // The view shows four racks of eleven places, whatever the station has of them.
        if (position.eType != vxPositionPlace || !G_Exists(mContext.oStation, position)) return Tooltip();
        std::string text = TextOf(mContext.Place(position.lRack, position.lNumber));
        if (text.empty()) return Tooltip();
        return Tooltip{std::move(text), mLayout.PlaceRect(position.lRack, position.lNumber)};
    });
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
    return G_TrapValue(mContext.className, "P_GetTooltipHWConfiguration", std::string(), [&] {
        const auto oModule = oPlace->Module();
        if (!oModule->IsEmpty()) return mContext.Station()->ModuleTooltip(oModule);
        if (mContext.bLocked) return std::string();
        if (oPlace->Usability() == vxPlaceActive) return mTexts->Text(TextPlaceCanBeFilled);
        return mContext.Station()->EmptyPlaceTooltip(oPlace);
    });
}

std::string PlaceTooltips::P_GetTooltipHWDiagnostics(const VxHWRackPlacePtr& oPlace) const noexcept
{
    return G_TrapValue(mContext.className, "P_GetTooltipHWDiagnostics", std::string(), [&] {
        if (oPlace->Module()->IsEmpty()) return std::string();
        const auto oDiagService = G_Require(mContext.oDiagService, "The diagnostics service");
        return DiagTexts::Description(*oDiagService, oPlace, *mTexts, DiagTexts::NoText);
    });
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
