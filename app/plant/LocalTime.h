#pragma once

#include "zqbchwcx/reference/diag/TimeText.h"

#include <QString>

namespace quillon_ed {

/// Now, of the computer's clock.
zqbchwcx::reference::Time SystemTime();
/// As people who look at a clock on the wall read it, to the millisecond.
QString LocalTime(zqbchwcx::reference::Time time);
/// A text about a plant, whose times are UTC, in times of the wall.
QString WithLocalTime(QString text);

} // namespace quillon_ed
