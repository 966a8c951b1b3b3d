#include "zqbchwcx/controllers/compare/VxHWCompCtrlMouse.h"

#include "zqbchwcx/controllers/compare/OpenParameterComparison.h"
#include "zqbchwcx/foundation/model/VxHWCompareService.h"

namespace zqbchwcx {

VxHWCompCtrlMouse::VxHWCompCtrlMouse() noexcept : CompareServiceKeeper("VxHWCompCtrlMouse") {}

void VxHWCompCtrlMouse::Open(const VxHWRackPlacePtr& oPlace, std::int32_t /*lSubModuleLine*/)
{
    const auto oService = Service();
    if (oService->CompareType() == 0) G_OpenParameterComparison(oService, oPlace);
}

} // namespace zqbchwcx
