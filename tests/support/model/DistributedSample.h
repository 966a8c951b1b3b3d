#pragma once

#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <array>

namespace zqbchwcx::testing {

/// A distributed station with five rows of places, of which three are hidden; 8, 9 and most others are empty. The order
/// numbers are those of the modules in places 1 to 7, with the wide one last, and of the others.
reference::StationData DistributedSample(VxEnumStationType eKind, const std::array<const char*, 6>& first,
                                         const char* outputs);

} // namespace zqbchwcx::testing
