#include "zqbchwcx/reference/model/contract/PlacesOfRack.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/reference/model/contract/RackPlace.h"

#include <memory>
#include <utility>

namespace zqbchwcx::reference {
namespace {

[[noreturn]] void RefuseChange()
{
    throw VxError(vxErrorInvalidArgument, "The places of a rack cannot be changed");
}

} // namespace

PlacesOfRack::PlacesOfRack(StationStatePtr oState, std::int32_t lRack) : moState(std::move(oState)), mlRack(lRack) {}

VxHWRackPlacePtr PlacesOfRack::Item(std::int32_t lIndex) const
{
    static_cast<void>(moState->Place({mlRack, lIndex}));
    return std::make_shared<RackPlace>(moState, PlaceRef{mlRack, lIndex});
}

std::int32_t PlacesOfRack::Count() const
{
    return static_cast<std::int32_t>(moState->Rack(mlRack).places.size());
}

void PlacesOfRack::Add(const VxHWRackPlacePtr& /*oPlace*/)
{
    RefuseChange();
}

void PlacesOfRack::Remove(std::string_view /*key*/)
{
    RefuseChange();
}

void PlacesOfRack::Clear()
{
    RefuseChange();
}

bool PlacesOfRack::Contains(const VxHWRackPlacePtr& oPlace) const
{
    const PlaceRef place = RefOf(oPlace);
    return place.rack == mlRack && place.place >= 1 && place.place <= Count();
}

} // namespace zqbchwcx::reference
