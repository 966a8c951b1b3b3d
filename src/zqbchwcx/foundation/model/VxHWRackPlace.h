#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <string>

namespace zqbchwcx {

/// A numbered place of a rack. What it returns is never null.
class VxHWRackPlace {
public:
    virtual ~VxHWRackPlace() = default;

    /// From 1 within the rack.
    virtual std::int32_t Number() const = 0;
    /// The place's identity in collections of places.
    virtual std::string Key() const = 0;
    /// -1 not usable, 0 inactive, 1 active.
    virtual std::int32_t Usability() const = 0;
    /// Never null: an empty place carries an empty-module object.
    virtual VxHWModulePtr Module() const = 0;
    virtual VxHWRackPtr Rack() const = 0;
};

} // namespace zqbchwcx
