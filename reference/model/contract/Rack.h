#pragma once

#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/reference/model/contract/StationState.h"

namespace zqbchwcx::reference {

/// A handle to a rack: reads the station's current state whenever it is asked.
class Rack : public VxHWRack {
public:
    /// Throws VxError when the station has no such rack.
    Rack(StationStatePtr oState, std::int32_t lNumber);

    std::int32_t Number() const override { return mlNumber; }
    std::int32_t State() const override;
    VxHWRackPlacesPtr Places() const override;

private:
    StationStatePtr moState;
    std::int32_t mlNumber;
};

} // namespace zqbchwcx::reference
