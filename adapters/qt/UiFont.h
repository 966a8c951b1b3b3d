#pragma once

#include <QFont>

#include <string_view>

namespace zqbchwcx::qt {

/// The font of that family, as high as the points are at 96 dpi, or the desktop's font of that height when the family
/// is not installed (the Tahoma of the package fonts-wine is found although no font list has it).
QFont UiFont(std::string_view family, double points);

/// The desktop's font in the size of the views, for text of a control that was given no font.
QFont DefaultUiFont();

/// The same font for a device of the ratio, where a logical pixel is that many device pixels.
QFont ScaledFont(const QFont& font, double ratio);

} // namespace zqbchwcx::qt
