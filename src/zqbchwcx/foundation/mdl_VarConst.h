#pragma once

#include "zqbchwcx/platform/Color.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

inline constexpr std::string_view G_LibraryName = "zqbchwcx";
inline constexpr std::string_view G_TextModuleName = "zqhwuim";
inline constexpr std::string_view G_ConfigTextFormatName = "VxHWConfigText";
inline constexpr std::string_view G_ApplicationClassId = "{EFCA418E-8375-11D2-BF9C-0020AF5A37DC}";
inline constexpr std::int32_t G_InstanceCategory = 1;

/// Background of views that show an online station.
inline constexpr OleColor G_ColorOnlineBackground = G_Rgb(226, 237, 255);

} // namespace zqbchwcx
