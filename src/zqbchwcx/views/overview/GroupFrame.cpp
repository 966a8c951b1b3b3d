#include "zqbchwcx/views/overview/GroupFrame.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/views/overview/CentralPictures.h"

namespace zqbchwcx {

std::string_view G_GroupFrameKey(const VxHWModule& oModule, const VxHWModulePtr& oParentModule)
{
    const std::int32_t lIndex = oModule.IndexInParent();
    if (lIndex == 0) return CentralPictures::FrameMid;
    const std::int32_t lPlaceCount = G_Require(oParentModule, "The parent module")->PlaceCount();
    if (lIndex == 1) return lPlaceCount == 1 ? CentralPictures::FrameTotal : CentralPictures::FrameLeft;
    return lIndex == lPlaceCount ? CentralPictures::FrameRight : CentralPictures::FrameMid;
}

} // namespace zqbchwcx
