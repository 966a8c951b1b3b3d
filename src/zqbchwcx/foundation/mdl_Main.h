#pragma once

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/platform/Color.h"
#include "zqbchwcx/platform/HostServices.h"

#include <cstdint>
#include <string>

namespace zqbchwcx {

/// Takes a position apart. A negative position yields type, rack and number 0 and leaves the sub-position as it was.
void G_PositionInfo(std::int32_t lPosition, VxEnumPositionType& eType, std::int32_t& lRack, std::int32_t& lNumber,
                    std::int32_t& lSubPosition) noexcept;

/// The directory of the hardware pictures, ending in a backslash. Read afresh on every call.
std::string G_HWPicDir() noexcept;

/// The background of disabled (locked) views.
OleColor G_ColorDisabledBackground() noexcept;
/// The colour as an RGB value, or -1 if it cannot be translated.
OleColor G_TranslateColor(OleColor color, std::intptr_t hPalette) noexcept;
/// The RGB value halfway between two colours; halves are rounded towards the larger channel.
OleColor G_GetMiddleColor(OleColor color1, OleColor color2) noexcept;

/// The host application, or null when it is not running. Looked up on every call.
HostApplicationPtr G_GetApplication() noexcept;

/// 1 starts a wait, -1 ends it, 0 restores the wait cursor.
void G_DoWaitCursor(std::int32_t lCode) noexcept;

} // namespace zqbchwcx
