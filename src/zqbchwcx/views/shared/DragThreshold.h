#pragma once

#include "zqbchwcx/platform/Geometry.h"

#include <string_view>

namespace zqbchwcx {

/// How far the mouse must move with a button held before a drag starts: the user's drag rectangle, in pixels. An
/// error, or a stored value that is not a number, is reported under the class and leaves the usual 4.
Size G_DragThreshold(std::string_view className) noexcept;

} // namespace zqbchwcx
