#pragma once

#include "zqbchwcx/foundation/model/VxHWStation.h"
#include "zqbchwcx/views/shared/ShownPlaces.h"

#include <cstdint>
#include <optional>

namespace zqbchwcx {

/// Where a cursor key leads in the table of a central station: Up and Down along the places; Left and Right to the same
/// place of the rack below or above, with Shift or Ctrl to the first or last place. Nothing when the focus stays.
std::optional<std::int32_t> G_CentralTableCursorTarget(const VxHWStation& oStation, std::int32_t lFocus,
                                                       std::int16_t nKeyCode, std::int16_t nShift);

/// Where a cursor key leads in the table of a distributed station: Up and Down along the places that are shown, or from
/// gap to gap; Left and Right only with Shift or Ctrl, to the first or last place. Nothing when the focus stays.
std::optional<std::int32_t> G_ShownTableCursorTarget(const ShownPlaces& shown, std::int32_t lFocus,
                                                     std::int16_t nKeyCode, std::int16_t nShift);

} // namespace zqbchwcx
