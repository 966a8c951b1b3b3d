#pragma once

#include "zqbchwcx/platform/Surface.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

enum class NumberMode { Plain = 0, Grayed = 1, Bold = 2 };

/// The box that a rack or place number is centred in, in logical pixels.
inline constexpr Size G_NumberBox{13, 13};

/// Draws a rack or place number into the number box at the point. An error is reported under the class.
void G_DrawNumber(std::string_view className, Surface& surface, std::int32_t lNumber, Point at,
                  NumberMode eMode) noexcept;

} // namespace zqbchwcx
