#pragma once

#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/reference/model/contract/Rack.h"

#include <memory>
#include <utility>

namespace zqbchwcx::reference {

/// The racks of a station as they are when asked; rack R is the element at index R.
class Racks : public VxHWRacks {
public:
    explicit Racks(StationStatePtr oState) : moState(std::move(oState)) {}

    VxHWRackPtr Item(std::int32_t lRackNumber) const override { return std::make_shared<Rack>(moState, lRackNumber); }
    std::int32_t Count() const override { return moState->RackCount(); }
    VxHWRackPtr Element(std::int32_t lIndex) const override { return Item(lIndex); }

private:
    StationStatePtr moState;
};

} // namespace zqbchwcx::reference
