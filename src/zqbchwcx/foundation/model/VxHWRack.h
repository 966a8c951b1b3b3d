#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>

namespace zqbchwcx {

/// A rack of a station, also one that is not present. What it returns is never null.
class VxHWRack {
public:
    virtual ~VxHWRack() = default;

    virtual std::int32_t Number() const = 0;
    /// 0 not present, 1 present.
    virtual std::int32_t State() const = 0;
    virtual VxHWRackPlacesPtr Places() const = 0;
};

} // namespace zqbchwcx
