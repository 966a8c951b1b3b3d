#include "zqbchwcx/controllers/diag/VxHWDiagCtrlKey.h"

#include "zqbchwcx/controllers/diag/OpenDiagnostics.h"

namespace zqbchwcx {

VxHWDiagCtrlKey::VxHWDiagCtrlKey() noexcept : DiagServiceKeeper("VxHWDiagCtrlKey") {}

void VxHWDiagCtrlKey::Open(const VxHWRackPlacePtr& oPlace)
{
    G_OpenDiagnostics(Station(), Service(), oPlace);
}

} // namespace zqbchwcx
