#include "zqbchwcx/foundation/PlaceLookup.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"

namespace zqbchwcx {

VxHWRackPtr G_RackByNumber(const VxHWStationPtr& oStation, std::int32_t lRack)
{
    return G_Require(oStation, "The station")->Racks()->Item(lRack);
}

VxHWRackPlacePtr G_PlaceByNumber(const VxHWStationPtr& oStation, std::int32_t lRack, std::int32_t lPlace)
{
    return G_RackByNumber(oStation, lRack)->Places()->Item(lPlace);
}

bool G_Exists(const VxHWStationPtr& oStation, const PositionInfo& info)
{
    const auto oRacks = G_Require(oStation, "The station")->Racks();
    return info.lRack < oRacks->Count() && info.lNumber <= oRacks->Item(info.lRack)->Places()->Count();
}

bool G_IsPresent(const VxHWStationPtr& oStation, const PositionInfo& info)
{
    return G_Exists(oStation, info) && G_RackByNumber(oStation, info.lRack)->State() != vxRackNotPresent;
}

} // namespace zqbchwcx
