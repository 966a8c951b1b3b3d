#pragma once

#include "zqbchwcx/foundation/model/Collection.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <iterator>

namespace zqbchwcx {

/// The racks of a station.
class VxHWRacks {
public:
    virtual ~VxHWRacks() = default;

    /// The rack with that number. Throws when there is none.
    virtual VxHWRackPtr Item(std::int32_t lRackNumber) const = 0;
    virtual std::int32_t Count() const = 0;

    /// The rack at the 0-based index in insertion order, for the iteration.
    virtual VxHWRackPtr Element(std::int32_t lIndex) const = 0;
    CollectionIterator<VxHWRacks> begin() const { return {*this, 0}; }
    std::default_sentinel_t end() const { return {}; }
};

} // namespace zqbchwcx
