#pragma once

#include "zqbchwcx/platform/Color.h"

#include <QColor>

#include <cstdint>
#include <optional>

namespace zqbchwcx::qt {

/// The colour in the application's palette of now; nothing for a reference that there is not.
std::optional<QColor> ToQColor(OleColor color);
/// The colour of a ground. In a dark palette a pale fixed colour becomes a deep one of the same hue.
std::optional<QColor> ToGround(OleColor color);
/// Not a colour of the desktop.
bool IsFixedColor(OleColor color);
OleColor ToOleColor(const QColor& color);

/// The colour of a mark or text on the background. A system colour that can hardly be told from the background (a
/// light text colour of a dark palette on a light fixed background) gives way to black or white, whichever can.
QColor ReadableOn(OleColor color, const QColor& background);

} // namespace zqbchwcx::qt
