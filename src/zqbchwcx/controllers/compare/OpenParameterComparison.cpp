#include "zqbchwcx/controllers/compare/OpenParameterComparison.h"

#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/VxHWCompareService.h"

namespace zqbchwcx {

void G_OpenParameterComparison(const VxHWCompareServicePtr& oService, const VxHWRackPlacePtr& oPlace)
{
    if (oService->PlaceResult(oPlace) == vxCompareParametersDiffer) oService->ShowParameterDifferences(oPlace, nullptr);
}

} // namespace zqbchwcx
