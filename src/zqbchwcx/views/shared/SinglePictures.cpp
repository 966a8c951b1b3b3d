#include "zqbchwcx/views/shared/SinglePictures.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

namespace zqbchwcx {

void SinglePictures::Draw(Surface& surface, std::string_view name, Point at, DrawStyle eStyle) const noexcept
{
    G_Trap(msClassName, "P_DrawPicture", [&] {
        const auto oImage = mTexts->Picture(name);
        surface.DrawImage(*G_Require(oImage, "The picture"), at, eStyle);
    });
}

} // namespace zqbchwcx
