#include "zqbchwcx/views/shared/NumberText.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <string>

namespace zqbchwcx {

void G_DrawNumber(std::string_view className, Surface& surface, std::int32_t lNumber, Point at,
                  NumberMode eMode) noexcept
{
    G_Trap(className, "P_DrawNumber", [&] {
        surface.DrawCenteredText(std::to_string(lNumber), MakeRect(at.x, at.y, G_NumberBox.width, G_NumberBox.height),
                                 eMode == NumberMode::Bold ? FontWeight::Bold : FontWeight::Regular,
                                 eMode == NumberMode::Grayed ? vxColorGrayText : vxColorButtonText);
    });
}

} // namespace zqbchwcx
