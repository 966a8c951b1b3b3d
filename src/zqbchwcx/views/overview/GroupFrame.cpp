#include "zqbchwcx/views/overview/GroupFrame.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"

namespace zqbchwcx {

std::string_view G_GroupFrameKey(const PlaceStyle& style, const VxHWModule& oModule, const VxHWModulePtr& oParentModule)
{
    const std::int32_t lIndex = oModule.IndexInParent();
    if (lIndex == 0) return style.frameMid;
    const std::int32_t lPlaceCount = G_Require(oParentModule, "The parent module")->PlaceCount();
    if (lIndex == 1) return lPlaceCount == 1 ? style.frameTotal : style.frameLeft;
    return lIndex == lPlaceCount ? style.frameRight : style.frameMid;
}

} // namespace zqbchwcx
