#pragma once

#include "zqbchwcx/foundation/model/VxHWStation.h"

#include <cstdint>
#include <optional>

namespace zqbchwcx {

/// Where a cursor key leads in a central station, or nothing when it leads nowhere.
/// `bFine` steps through gaps and places alike, otherwise only places are visited. Throws what the model throws.
std::optional<std::int32_t> G_CentralCursorTarget(const VxHWStation& oStation, std::int32_t lFocus,
                                                  std::int16_t nKeyCode, std::int16_t nShift, bool bFine);

} // namespace zqbchwcx
