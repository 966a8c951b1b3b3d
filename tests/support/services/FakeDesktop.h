#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/Desktop.h"

#include <map>

namespace zqbchwcx::testing {

/// A desktop whose system colours and pointer a test sets and reads.
class FakeDesktop : public Desktop, public Logged {
public:
    using Logged::Logged;

    std::optional<OleColor> TranslateColor(OleColor color, std::intptr_t /*hPalette*/) const override
    {
        Call("Desktop.TranslateColor");
        if (color >= 0) return color;
        const auto found = systemColors.find(color);
        return found == systemColors.end() ? std::nullopt : std::optional(found->second);
    }
    void ScreenMousePointer(MousePointer newPointer) override
    {
        moLog->NoteEnd(newPointer == MousePointer::Hourglass ? "Pointer hourglass" : "Pointer default");
    }
    std::int16_t RegisterClipboardFormat(std::string_view name) override
    {
        Call("Desktop.RegisterClipboardFormat");
        return Format(name);
    }

    /// The number that the name has or gets. Real ones start at 0xC000, so they are negative in 16 bits.
    std::int16_t Format(std::string_view name)
    {
        const auto next = static_cast<std::int16_t>(-0x4000 + static_cast<int>(mcolFormats.size()));
        return mcolFormats.try_emplace(std::string(name), next).first->second;
    }

    std::map<OleColor, OleColor> systemColors{{vxColorButtonFace, G_Rgb(212, 208, 200)},
                                              {vxColorButtonHighlight, G_Rgb(255, 255, 255)},
                                              {vxColorLight3D, G_Rgb(227, 224, 220)}};

private:
    std::map<std::string, std::int16_t> mcolFormats;
};

} // namespace zqbchwcx::testing
