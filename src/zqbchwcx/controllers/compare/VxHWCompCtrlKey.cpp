#include "zqbchwcx/controllers/compare/VxHWCompCtrlKey.h"

#include "zqbchwcx/controllers/compare/OpenParameterComparison.h"

namespace zqbchwcx {

VxHWCompCtrlKey::VxHWCompCtrlKey() noexcept : CompareServiceKeeper("VxHWCompCtrlKey") {}

void VxHWCompCtrlKey::Open(const VxHWRackPlacePtr& oPlace)
{
    G_OpenParameterComparison(Service(), oPlace);
}

} // namespace zqbchwcx
