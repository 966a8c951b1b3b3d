#pragma once

#include "zqbchwcx/qt/PixelGrid.h"

class QPainter;

namespace zqbchwcx::qt {

/// Makes the painter of a window's paint event draw in device pixels, with the origin at the window's own top-left
/// device pixel. A window may start between two device pixels; it is moved to the nearer one, never smeared.
void UseDevicePixels(QPainter& painter, double ratio);

} // namespace zqbchwcx::qt
