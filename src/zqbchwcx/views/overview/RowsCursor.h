#pragma once

#include "zqbchwcx/views/overview/RowsLayout.h"

#include <cstdint>
#include <optional>

namespace zqbchwcx {

/// Where a cursor key leads in rows of places, or nothing when it leads nowhere; never to a place that is not shown.
/// Left and Right go along the places as they are shown, from row to row; Up and Down stay in the column. With Shift or
/// Ctrl only places are visited, and what lies beyond the first or last row is the first or last place.
/// `bFine` steps through gaps and places alike.
std::optional<std::int32_t> G_RowsCursorTarget(const RowsLayout& layout, std::int32_t lFocus, std::int16_t nKeyCode,
                                               std::int16_t nShift, bool bFine);

} // namespace zqbchwcx
