#include "zqbchwcx/views/shared/ShownPlaces.h"

#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"

namespace zqbchwcx {
namespace {

/// 0 where the list has no such position, counted from 1.
std::int32_t At(const std::vector<std::int32_t>& list, std::int32_t lPosition)
{
    const bool bInside = lPosition >= 1 && lPosition <= static_cast<std::int32_t>(list.size());
    return bInside ? list[static_cast<std::size_t>(lPosition - 1)] : 0;
}

} // namespace

ShownPlaces ShownPlaces::Of(const VxHWStationPtr& oStation)
{
    ShownPlaces shown;
    if (!oStation) return shown;
    for (const auto& oPlace : G_RackByNumber(oStation, 0)->Places()) {
        shown.mcolIndexFrom.push_back(shown.Count() + 1);
        if (oPlace->Usability() != vxPlaceNotUsable) shown.mcolNumbers.push_back(oPlace->Number());
    }
    return shown;
}

std::int32_t ShownPlaces::NumberAt(std::int32_t lIndex) const
{
    return At(mcolNumbers, lIndex);
}

std::int32_t ShownPlaces::IndexFrom(std::int32_t lPlace) const
{
    const std::int32_t lIndex = At(mcolIndexFrom, lPlace);
    return lIndex <= Count() ? lIndex : 0;
}

std::int32_t ShownPlaces::IndexOf(std::int32_t lPlace) const
{
    const std::int32_t lIndex = IndexFrom(lPlace);
    return lIndex != 0 && NumberAt(lIndex) == lPlace ? lIndex : 0;
}

std::int32_t ShownPlaces::NumberFrom(std::int32_t lPlace) const
{
    if (lPlace > PlaceCount()) return lPlace;
    const std::int32_t lIndex = IndexFrom(lPlace);
    return lIndex != 0 ? NumberAt(lIndex) : PlaceCount() + 1;
}

} // namespace zqbchwcx
