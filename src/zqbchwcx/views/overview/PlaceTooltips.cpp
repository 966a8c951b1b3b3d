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

namespace zqbchwcx {
namespace {

constexpr std::int32_t TextPlaceCanBeFilled = 6100;
constexpr std::int32_t NoText = 0;

struct DiagCategory {
    std::int32_t lCategory;
    std::int32_t lTextId;
};
constexpr DiagCategory DiagCategories[] = {{vxDiagCategory1, 2021}, {vxDiagCategory4, 2026}, {vxDiagCategory2, 2027}};

std::int32_t CpuStateTextId(std::int32_t lCpuState)
{
    switch (lCpuState) {
    case vxCpuStateRun:
        return 6101;
    case vxCpuStateStop:
        return 6102;
    case vxCpuStateHold:
        return 6103;
    default:
        return NoText;
    }
}

std::int32_t CompareTextId(std::int32_t lResult, std::int32_t lCompareType)
{
    const bool bKnownType = lCompareType >= 0 && lCompareType <= 2;
    switch (lResult) {
    case vxCompareEqual:
        return 6107;
    case vxComparePotentiallyEqual:
        return 6119;
    case vxCompareNoModule:
        if (!bKnownType) return NoText;
        return lCompareType == 2 ? 6110 : 6109;
    case vxCompareOnlyOther:
        if (!bKnownType) return NoText;
        return lCompareType == 0 ? 6110 : 6111;
    case vxCompareModuleDiffers:
    case vxCompareModuleDiffers2:
        return 6108;
    case vxCompareParametersDiffer:
    case vxCompareParametersDiffer2:
        return 6112;
    default:
        return NoText;
    }
}

void AppendLine(std::string& text, std::string_view line)
{
    if (line.empty()) return;
    if (!text.empty()) text += "\r\n";
    text += line;
}

} // namespace

void PlaceTooltips::P_SetTooltips(std::intptr_t hWnd) noexcept
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
        const std::int32_t lCpuStateTextId = CpuStateTextId(oDiagService->CpuState(oPlace));
        if (lCpuStateTextId != NoText) AppendLine(text, mTexts->Text(lCpuStateTextId));
        if (oDiagService->HasFailure(oPlace) == 0) return;
        for (const auto& category : DiagCategories) {
            if (oDiagService->HasDiagState(oPlace, category.lCategory))
                AppendLine(text, mTexts->Text(category.lTextId));
        }
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
        const std::int32_t lTextId = CompareTextId(lResult, oCompareService->CompareType());
        if (lTextId != NoText) AppendLine(text, mTexts->Text(lTextId));
        AppendLine(text, oCompareService->PlaceText(oPlace));
    });
    return text;
}

} // namespace zqbchwcx
