#include "tests/support/model/DistributedSample.h"

#include "tests/support/Samples.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/reference/model/editing/PlaceModules.h"
#include "zqbchwcx/reference/model/rules/ModuleRules.h"

namespace zqbchwcx::testing {

reference::StationData DistributedSample(VxEnumStationType eKind, const std::array<const char*, 6>& first,
                                         const char* outputs)
{
    const auto& catalogue = reference::ShippedCatalogue();
    reference::ModuleBlock block;
    const auto add = [&](const char* orderNumber) {
        block.push_back(
            std::make_shared<reference::ModuleData>(reference::NewModule(*catalogue.Find(orderNumber), catalogue)));
    };
    for (const char* orderNumber : first) add(orderNumber);
    block.resize(block.size() + 2);
    for (std::int32_t lModule = 0; lModule < 2; ++lModule) add(outputs);
    block.resize(block.size() + 22);
    add(outputs);

    reference::StationData data;
    data.name = "Sample";
    data.kind = eKind;
    auto rack = std::make_shared<reference::RackData>();
    rack->places.resize(38);
    data.racks.push_back(std::move(rack));
    const auto addresses = reference::AddressesOf(data, catalogue);
    data = reference::PlaceBlock({data, catalogue, addresses}, G_PlacePosition(0, 1), block).Result().data;
    rack = std::make_shared<reference::RackData>(*data.racks.front());
    for (const std::size_t hidden : {12U, 13U, 30U}) rack->places[hidden - 1].usability = vxPlaceNotUsable;
    data.racks.front() = std::move(rack);
    return data;
}

} // namespace zqbchwcx::testing
