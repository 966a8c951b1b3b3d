#pragma once

#include "zqbchwcx/qt/QtImage.h"

#include <string_view>

namespace zqbchwcx::qt {

/// Loads a picture file of the given logical width. Slashes and backslashes both part directories, and letter case is
/// ignored where no file has the exact name. When there is no file of that name, a PNG or SVG file of the same base
/// name is taken; cyan is transparent in a BMP file. A PNG file may be twice, three or four times as fine as the
/// width asks. Null when there is no such file, or when none yields a picture.
QtImagePtr LoadImageFile(std::string_view path, std::int32_t lLogicalWidth);

} // namespace zqbchwcx::qt
