#pragma once

#include "zqbchwcx/platform/Color.h"

#include <QColor>

namespace quillon_ed {

/// The colour on white paper: system colours do not follow the screen's palette, so that a dark desktop prints well.
QColor PaperColor(zqbchwcx::OleColor color);

} // namespace quillon_ed
