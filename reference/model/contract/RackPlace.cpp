#include "zqbchwcx/reference/model/contract/RackPlace.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/reference/model/contract/Module.h"
#include "zqbchwcx/reference/model/contract/Rack.h"

#include <memory>
#include <string>
#include <utility>

namespace zqbchwcx::reference {

RackPlace::RackPlace(StationStatePtr oState, PlaceRef place) : moState(std::move(oState)), moPlace(place) {}

std::string RackPlace::Key() const
{
    return std::to_string(moPlace.rack) + "/" + std::to_string(moPlace.place);
}

std::int32_t RackPlace::Usability() const
{
    return moState->Place(moPlace).usability;
}

VxHWModulePtr RackPlace::Module() const
{
    static_cast<void>(moState->Place(moPlace));
    auto body = std::make_shared<ModuleBody>();
    body->context = moState->Context();
    body->station = moState.get();
    body->stationKind = moState->Data().kind;
    body->firstPlace = moPlace;
    const std::int32_t firstPlace = moState->OccupancyOf(moPlace.rack).FirstPlace(moPlace.place);
    if (firstPlace == 0) return std::make_shared<reference::Module>(std::move(body));

    body->firstPlace.place = firstPlace;
    body->data = moState->Place(body->firstPlace).module;
    const bool spans = SpanOf(*body->data, moState->ModuleTypes()) > 1;
    return std::make_shared<reference::Module>(std::move(body), spans ? moPlace.place - firstPlace + 1 : 0);
}

VxHWRackPtr RackPlace::Rack() const
{
    return std::make_shared<reference::Rack>(moState, moPlace.rack);
}

PlaceRef RefOf(const VxHWRackPlacePtr& oPlace)
{
    return {oPlace->Rack()->Number(), oPlace->Number()};
}

} // namespace zqbchwcx::reference
