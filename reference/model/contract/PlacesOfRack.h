#pragma once

#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/reference/model/contract/StationState.h"

namespace zqbchwcx::reference {

/// The places of a rack as they are when asked. Adding, removing and clearing throw VxError: a rack keeps its places.
class PlacesOfRack : public VxHWRackPlaces {
public:
    PlacesOfRack(StationStatePtr oState, std::int32_t lRack);

    VxHWRackPlacePtr Item(std::int32_t lIndex) const override;
    std::int32_t Count() const override;
    void Add(const VxHWRackPlacePtr& oPlace) override;
    void Remove(std::string_view key) override;
    void Clear() override;
    bool Contains(const VxHWRackPlacePtr& oPlace) const override;
    VxHWRackPlacePtr Element(std::int32_t lIndex) const override { return Item(lIndex + 1); }

private:
    StationStatePtr moState;
    std::int32_t mlRack;
};

} // namespace zqbchwcx::reference
