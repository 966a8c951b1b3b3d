#include "app/document/NewStation.h"

#include "zqbchwcx/foundation/model/Enumerations.h"

namespace quillon_ed {

using namespace zqbchwcx;

StationSize LargestNewStation(std::int32_t stationKind)
{
    return stationKind == vxStationKindCentral ? StationSize{4, 11} : StationSize{1, 64};
}

reference::StationData MakeNewStation(std::string name, std::int32_t stationKind, StationSize size)
{
    reference::RackData rack;
    rack.places.resize(static_cast<std::size_t>(size.places));
    reference::StationData station;
    station.name = std::move(name);
    station.kind = stationKind;
    for (std::int32_t number = 0; number < size.racks; ++number) {
        station.racks.push_back(std::make_shared<const reference::RackData>(rack));
    }
    return station;
}

} // namespace quillon_ed
