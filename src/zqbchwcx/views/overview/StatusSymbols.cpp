#include "zqbchwcx/views/overview/StatusSymbols.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWCompareService.h"
#include "zqbchwcx/foundation/model/VxHWDiagService.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/views/shared/CompareTexts.h"
#include "zqbchwcx/views/shared/DiagTexts.h"

namespace zqbchwcx {

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
            surface.DrawListImage(mModulePictures.List(), mStyle.moduleDefault, placeAt, DrawStyle::Normal);
        DrawSymbol(surface, CompareTexts::ResultPicture(lResult), placeAt, mStyle.compare);
    });
}

void StatusSymbols::P_SetHWDiagSymbols(Surface& surface, const VxHWRackPlacePtr& oPlace, Point placeAt) const noexcept
{
    G_Trap(mContext.className, "P_SetHWDiagSymbols", [&] {
        if (oPlace->Module()->IsEmpty()) return;
        const auto oDiagService = G_Require(mContext.oDiagService, "The diagnostics service");
        DrawSymbol(surface, DiagTexts::CpuStatePicture(oDiagService->CpuState(oPlace)), placeAt, mStyle.cpuState);
        if (oDiagService->HasFailure(oPlace) != 0)
            DrawSymbol(surface, DiagTexts::FailurePicture, placeAt, mStyle.failure);
    });
}

void StatusSymbols::DrawSymbol(Surface& surface, std::string_view name, Point placeAt, Point offset) const noexcept
{
    if (name.empty()) return;
    mSinglePictures.Draw(surface, name, {placeAt.x + offset.x, placeAt.y + offset.y}, DrawStyle::Transparent);
}

} // namespace zqbchwcx
