#pragma once

#include <QSize>

class QWidget;

namespace quillon_ed {

/// The size that a window is opened with, or as much of it as its screen has room for.
QSize WithinScreen(const QWidget& window, QSize size);

/// The width of that many characters in the widget's font, and the height of that many of its lines.
QSize TextSize(const QWidget& widget, int characters, int lines);

} // namespace quillon_ed
