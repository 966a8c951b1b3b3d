#pragma once

#include <QPalette>

namespace quillon_ed {

/// Colours of a desktop, to choose from where there is none.
enum class Colors { Light, Dark, Contrast };

/// Needs a QApplication: the light ones are its style's own.
QPalette PaletteOf(Colors colors);

} // namespace quillon_ed
