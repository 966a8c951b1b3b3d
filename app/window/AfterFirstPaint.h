#pragma once

#include <functional>

class QWidget;

namespace quillon_ed {

/// Calls `then` once: when the window has been painted for the first time, or a second after this call when it is not
/// painted, as one that starts minimized is not. Never, when the window is gone before.
void AfterFirstPaint(QWidget& window, std::function<void()> then);

} // namespace quillon_ed
