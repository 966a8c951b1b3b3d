#pragma once

#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/reference/model/PlaceRef.h"
#include "zqbchwcx/reference/model/contract/StationState.h"

namespace zqbchwcx::reference {

/// A handle to a place: reads the station's current state whenever it is asked. Throws VxError when the station has
/// lost the place meanwhile.
class RackPlace : public VxHWRackPlace {
public:
    RackPlace(StationStatePtr oState, PlaceRef place);

    PlaceRef Ref() const { return moPlace; }

    std::int32_t Number() const override { return moPlace.place; }
    /// The rack's and the place's number, such as "0/4".
    std::string Key() const override;
    std::int32_t Usability() const override;
    VxHWModulePtr Module() const override;
    VxHWRackPtr Rack() const override;

private:
    StationStatePtr moState;
    PlaceRef moPlace;
};

/// Where a place of any model is. Throws VxError for nothing.
PlaceRef RefOf(const VxHWRackPlacePtr& oPlace);

} // namespace zqbchwcx::reference
