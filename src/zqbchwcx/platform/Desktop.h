#pragma once

#include "zqbchwcx/platform/Color.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace zqbchwcx {

enum class MousePointer { Default, Hourglass };

/// What the desktop tells and keeps for every program.
class Desktop {
public:
    virtual ~Desktop() = default;

    /// The colour as an RGB value, or nothing when it cannot be translated.
    virtual std::optional<OleColor> TranslateColor(OleColor color, std::intptr_t hPalette) const = 0;
    virtual void ScreenMousePointer(MousePointer pointer) = 0;
    /// The number of the clipboard format of that name; the same name always gives the same number.
    virtual std::int16_t RegisterClipboardFormat(std::string_view name) = 0;
};

} // namespace zqbchwcx
