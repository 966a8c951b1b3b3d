#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>

namespace zqbchwcx {

/// Lets the station show what there is to tell about the module of the place, or about its sub-module in that line
/// (from 1; 0 for the module itself). Does nothing when the service has nothing to tell.
void G_OpenDiagnostics(const VxHWStationPtr& oStation, const VxHWDiagServicePtr& oService,
                       const VxHWRackPlacePtr& oPlace, std::int32_t lSubModuleLine = 0);

} // namespace zqbchwcx
