#include "zqbchwcx/views/overview/StatusSymbols.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWCompareService.h"
#include "zqbchwcx/foundation/model/VxHWDiagService.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"

namespace zqbchwcx {
namespace {

std::string_view CpuSymbol(std::int32_t lCpuState)
{
    switch (lCpuState) {
    case vxCpuStateRun:
        return "IDB_DIAG_CPU_RUN";
    case vxCpuStateStop:
        return "IDB_DIAG_CPU_STOP";
    case vxCpuStateHold:
        return "IDB_DIAG_CPU_HOLD";
    default:
        return {};
    }
}

std::string_view CompareSymbol(std::int32_t lResult)
{
    switch (lResult) {
    case vxCompareEqual:
        return "IDB_COMP_EQUAL";
    case vxComparePotentiallyEqual:
        return "IDB_COMP_POTEQUAL";
    case vxCompareNoModule:
    case vxCompareOnlyOther:
        return "IDB_COMP_NOMODULE";
    case vxCompareModuleDiffers:
    case vxCompareModuleDiffers2:
        return "IDB_COMP_MODULEDIFF";
    case vxCompareParametersDiffer:
    case vxCompareParametersDiffer2:
        return "IDB_COMP_PARAMDIFF";
    default:
        return {};
    }
}

} // namespace

StatusSymbols::StatusSymbols(const ViewContext& context, const ModulePictures& modulePictures,
                             const SinglePictures& singlePictures, const Offsets& offsets,
                             std::string_view defaultModuleKey)
    : mContext(context), mModulePictures(modulePictures), mSinglePictures(singlePictures), mOffsets(offsets),
      msDefaultModuleKey(defaultModuleKey)
{
}

void StatusSymbols::Draw(Surface& surface, const VxHWRackPlacePtr& oPlace, Point placeAt) const noexcept
{
    if (mContext.eStyle == vxStyleHWCompare) P_SetHWCompareSymbols(surface, oPlace, placeAt);
    else if (mContext.eStyle == vxStyleHWDiag) P_SetHWDiagSymbols(surface, oPlace, placeAt);
}

void StatusSymbols::P_SetHWCompareSymbols(Surface& surface, const VxHWRackPlacePtr& oPlace,
                                          Point placeAt) const noexcept
{
    G_Trap(mContext.className, "P_SetHWCompareSymbols", [&] {
        const std::int32_t lResult = G_Require(mContext.oCompareService, "The compare service")->PlaceResult(oPlace);
        if (lResult == vxCompareOnlyOther)
            surface.DrawListImage(mModulePictures.List(), msDefaultModuleKey, placeAt, DrawStyle::Normal);
        DrawSymbol(surface, CompareSymbol(lResult), placeAt, mOffsets.compare);
    });
}

void StatusSymbols::P_SetHWDiagSymbols(Surface& surface, const VxHWRackPlacePtr& oPlace, Point placeAt) const noexcept
{
    G_Trap(mContext.className, "P_SetHWDiagSymbols", [&] {
        if (oPlace->Module()->IsEmpty()) return;
        const auto oDiagService = G_Require(mContext.oDiagService, "The diagnostics service");
        DrawSymbol(surface, CpuSymbol(oDiagService->CpuState(oPlace)), placeAt, mOffsets.cpuState);
        if (oDiagService->HasFailure(oPlace) != 0) DrawSymbol(surface, "IDB_DIAG_FAILURE", placeAt, mOffsets.failure);
    });
}

void StatusSymbols::DrawSymbol(Surface& surface, std::string_view name, Point placeAt, Point offset) const noexcept
{
    if (name.empty()) return;
    mSinglePictures.P_DrawPicture(surface, name, {placeAt.x + offset.x, placeAt.y + offset.y}, DrawStyle::Transparent);
}

} // namespace zqbchwcx
