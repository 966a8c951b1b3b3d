#pragma once

#include "zqbchwcx/foundation/model/Collection.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <iterator>
#include <string_view>

namespace zqbchwcx {

/// The places of a rack, or a free-standing collection of places (a selection, places that received modules).
class VxHWRackPlaces {
public:
    virtual ~VxHWRackPlaces() = default;

    /// In a rack: the place with that number. In a free-standing collection: the element at that 1-based index.
    /// Throws when there is none.
    virtual VxHWRackPlacePtr Item(std::int32_t lIndex) const = 0;
    virtual std::int32_t Count() const = 0;
    virtual void Add(const VxHWRackPlacePtr& oPlace) = 0;
    /// Removes the place with that `Key`. Throws when there is none.
    virtual void Remove(std::string_view key) = 0;
    virtual void Clear() = 0;
    virtual bool Contains(const VxHWRackPlacePtr& oPlace) const = 0;

    /// The element at the 0-based index in insertion order, for the iteration.
    virtual VxHWRackPlacePtr Element(std::int32_t lIndex) const = 0;
    CollectionIterator<VxHWRackPlaces> begin() const { return {*this, 0}; }
    std::default_sentinel_t end() const { return {}; }
};

} // namespace zqbchwcx
