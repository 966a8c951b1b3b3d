#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

namespace zqbchwcx {

/// Lets the service show the parameters of the place side by side, if it found that they differ.
void G_OpenParameterComparison(const VxHWCompareServicePtr& oService, const VxHWRackPlacePtr& oPlace);

} // namespace zqbchwcx
