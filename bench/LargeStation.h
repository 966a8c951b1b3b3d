#pragma once

#include "zqbchwcx/reference/model/StationData.h"

#include <cstdint>
#include <memory>
#include <utility>

namespace quillon_ed::bench {

namespace reference = zqbchwcx::reference;

/// A station of full racks, as large as racks can be.
inline reference::StationData LargeStation(std::int32_t lRacks)
{
    reference::StationData data;
    data.name = "Large";
    std::int32_t lAddress = 0;
    for (std::int32_t lRack = 0; lRack < lRacks; ++lRack) {
        auto rack = std::make_shared<reference::RackData>();
        rack->places.resize(reference::MaxPlaces);
        for (auto& place : rack->places) {
            reference::ModuleData module;
            module.orderNumber = "Q3-DI16-A";
            module.name = "Sensors";
            module.inputAddress = lAddress;
            lAddress += 2;
            place.module = std::make_shared<const reference::ModuleData>(std::move(module));
        }
        data.racks.push_back(std::move(rack));
    }
    return data;
}

} // namespace quillon_ed::bench
