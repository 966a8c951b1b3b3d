#pragma once

#include "zqbchwcx/qt/PixelGrid.h"

class QPainter;

namespace zqbchwcx::qt {

/// Makes the painter of a window's paint event draw in device pixels, with the origin at the window's own top-left
/// device pixel. A window may start between two device pixels; it is moved to the nearer one, never smeared.
void UseDevicePixels(QPainter& painter, double ratio);

/// The ratio of the device that the painter of a window's paint event draws on, which is not always the window's own.
double DeviceRatio(const QPainter& painter);

/// How many device pixels a thin line has.
int ThinLine(double ratio);

} // namespace zqbchwcx::qt
