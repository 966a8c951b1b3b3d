#pragma once

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <string>

namespace zqbchwcx {

/// What a position names, for a host to put into words.
struct PositionDescription {
    PositionInfo position;
    bool bRackPresent = false;
    std::int32_t lPlaceCount = 0; ///< of the rack

    // Of a place.
    std::int32_t lUsability = 0; ///< as `VxHWRackPlace::Usability`
    bool bEmpty = true;

    // Of its module; all texts as the model has them, empty without a module.
    std::string name;
    std::string orderNumber;
    std::string inputAddress;
    std::string outputAddress;
};

/// No position is described as none. Throws VxError where the station has no such rack or place, and what the model
/// throws.
PositionDescription G_DescribePosition(const VxHWStation& oStation, std::int32_t lPosition);

} // namespace zqbchwcx
