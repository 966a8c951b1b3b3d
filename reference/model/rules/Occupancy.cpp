#include "zqbchwcx/reference/model/rules/Occupancy.h"

#include <algorithm>

namespace zqbchwcx::reference {

std::int32_t SpanOf(const ModuleData& module, const Catalogue& catalogue)
{
    const ModuleType* type = catalogue.Find(module.orderNumber);
    return type ? std::max(type->placeCount, 1) : 1;
}

Occupancy::Occupancy(const RackData& rack, const Catalogue& catalogue) : mcolFirstPlaces(rack.places.size(), 0)
{
    std::int32_t firstPlace = 0;
    std::int32_t end = 0;
    for (std::int32_t place = 1; place <= PlaceCount(); ++place) {
        const auto index = static_cast<std::size_t>(place - 1);
        if (const ModuleDataPtr& module = rack.places[index].module) {
            firstPlace = place;
            end = place + SpanOf(*module, catalogue);
        }
        if (place < end) mcolFirstPlaces[index] = firstPlace;
    }
}

void Occupancy::Free(std::int32_t firstPlace)
{
    for (std::int32_t place = firstPlace; FirstPlace(place) == firstPlace; ++place) Mark(place, 1, 0);
}

void Occupancy::Mark(std::int32_t firstPlace, std::int32_t span, std::int32_t value)
{
    const std::int32_t end = std::min(firstPlace + span - 1, PlaceCount());
    for (std::int32_t place = std::max(firstPlace, 1); place <= end; ++place)
        mcolFirstPlaces[static_cast<std::size_t>(place - 1)] = value;
}

} // namespace zqbchwcx::reference
