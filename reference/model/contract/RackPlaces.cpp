#include "zqbchwcx/reference/model/contract/RackPlaces.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"

#include <algorithm>

namespace zqbchwcx::reference {

VxHWRackPlacePtr RackPlaces::Item(std::int32_t lIndex) const
{
    if (lIndex < 1 || lIndex > Count())
        throw VxError(vxErrorSubscript, "There is no place " + std::to_string(lIndex) + " in the collection");
    return mcolPlaces[static_cast<std::size_t>(lIndex - 1)];
}

void RackPlaces::Add(const VxHWRackPlacePtr& oPlace)
{
    ++mcolCountByKey[G_Require(oPlace, "The place")->Key()];
    mcolPlaces.push_back(oPlace);
}

void RackPlaces::Remove(std::string_view key)
{
    const auto found = std::find_if(mcolPlaces.begin(), mcolPlaces.end(),
                                    [&](const VxHWRackPlacePtr& place) { return place->Key() == key; });
    if (found == mcolPlaces.end())
        throw VxError(vxErrorInvalidArgument, "There is no place \"" + std::string(key) + "\" in the collection");
    mcolPlaces.erase(found);
    const auto count = mcolCountByKey.find(std::string(key));
    if (--count->second == 0) mcolCountByKey.erase(count);
}

void RackPlaces::Clear()
{
    mcolPlaces.clear();
    mcolCountByKey.clear();
}

bool RackPlaces::Contains(const VxHWRackPlacePtr& oPlace) const
{
    return mcolCountByKey.contains(G_Require(oPlace, "The place")->Key());
}

} // namespace zqbchwcx::reference
