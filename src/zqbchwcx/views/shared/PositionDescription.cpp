#include "zqbchwcx/views/shared/PositionDescription.h"

#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"

namespace zqbchwcx {

PositionDescription G_DescribePosition(const VxHWStation& oStation, std::int32_t lPosition)
{
    PositionDescription what;
    what.position = G_PositionInfo(lPosition);
    if (what.position.eType == vxPositionNone) return what;
    const auto oRack = oStation.Racks()->Item(what.position.lRack);
    const auto oPlaces = oRack->Places();
    what.bRackPresent = oRack->State() == vxRackPresent;
    what.lPlaceCount = oPlaces->Count();
    if (what.position.eType != vxPositionPlace) return what;
    const auto oPlace = oPlaces->Item(what.position.lNumber);
    const auto oModule = oPlace->Module();
    what.lUsability = oPlace->Usability();
    what.bEmpty = oModule->IsEmpty();
    if (what.bEmpty) return what;
    what.name = oModule->Name();
    what.orderNumber = oModule->OrderNumber();
    what.inputAddress = oModule->InputAddressText();
    what.outputAddress = oModule->OutputAddressText();
    return what;
}

} // namespace zqbchwcx
