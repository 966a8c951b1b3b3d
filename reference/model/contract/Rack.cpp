#include "zqbchwcx/reference/model/contract/Rack.h"

#include "zqbchwcx/reference/model/contract/PlacesOfRack.h"

#include <utility>

namespace zqbchwcx::reference {

Rack::Rack(StationStatePtr oState, std::int32_t lNumber) : moState(std::move(oState)), mlNumber(lNumber)
{
    static_cast<void>(moState->Rack(mlNumber));
}

std::int32_t Rack::State() const
{
    return moState->Rack(mlNumber).state;
}

VxHWRackPlacesPtr Rack::Places() const
{
    return std::make_shared<PlacesOfRack>(moState, mlNumber);
}

} // namespace zqbchwcx::reference
