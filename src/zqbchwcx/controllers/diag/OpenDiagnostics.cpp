#include "zqbchwcx/controllers/diag/OpenDiagnostics.h"

#include "zqbchwcx/foundation/model/VxHWDiagService.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"

namespace zqbchwcx {

void G_OpenDiagnostics(const VxHWStationPtr& oStation, const VxHWDiagServicePtr& oService,
                       const VxHWRackPlacePtr& oPlace, std::int32_t lSubModuleLine)
{
    VxHWModulePtr oSubModule;
    if (lSubModuleLine > 0) oSubModule = oPlace->Module()->SubModules()->Item(lSubModuleLine - 1);
    if (oService->HasDiagnosticInfo(oPlace, oSubModule)) oStation->ShowModuleDiagnostics(oPlace, oSubModule);
}

} // namespace zqbchwcx
