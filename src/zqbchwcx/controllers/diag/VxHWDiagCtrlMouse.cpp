#include "zqbchwcx/controllers/diag/VxHWDiagCtrlMouse.h"

#include "zqbchwcx/controllers/diag/OpenDiagnostics.h"

namespace zqbchwcx {

VxHWDiagCtrlMouse::VxHWDiagCtrlMouse() noexcept : DiagServiceKeeper("VxHWDiagCtrlMouse") {}

void VxHWDiagCtrlMouse::Open(const VxHWRackPlacePtr& oPlace, std::int32_t lSubModuleLine)
{
    G_OpenDiagnostics(Station(), Service(), oPlace, lSubModuleLine);
}

} // namespace zqbchwcx
