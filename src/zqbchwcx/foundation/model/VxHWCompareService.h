#pragma once

#include "zqbchwcx/foundation/model/Collection.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <iterator>
#include <string>

namespace zqbchwcx {

/// `Kind` of a difference.
enum : std::int32_t {
    vxDifferenceOther = 0,     ///< a name or a comment, say
    vxDifferenceParameter = 1, ///< the host's parameter comparison can show it
    vxDifferenceAddress = 2,
};

/// One thing in which the modules of a place differ.
class ParameterDifference {
public:
    virtual ~ParameterDifference() = default;

    /// "group|channel|name": group and channel may be empty, and the name may hold further bars. Without a bar it is
    /// the name alone; empty for a difference that is not to be shown.
    virtual std::string Path() const = 0;
    /// The value of each station as a person reads it, with its unit; empty where a station has none.
    virtual std::string Value1() const = 0;
    virtual std::string Value2() const = 0;
    /// One of the vxDifference… values.
    virtual std::int32_t Kind() const = 0;
};

/// The parameter differences of a place, none of them null.
class ParameterDifferences {
public:
    virtual ~ParameterDifferences() = default;

    /// Index from 1, as a grid numbers its rows. Throws outside the collection.
    virtual ParameterDifferencePtr Item(std::int32_t lIndex) const = 0;
    virtual std::int32_t Count() const = 0;

    ParameterDifferencePtr Element(std::int32_t lIndex) const { return Item(lIndex + 1); }
    CollectionIterator<ParameterDifferences> begin() const { return {*this, 0}; }
    std::default_sentinel_t end() const { return {}; }
};

/// The comparison of two stations.
class VxHWCompareService {
public:
    virtual ~VxHWCompareService() = default;

    /// Which pair is compared: 0 project and plant, 1 project and comparison, 2 plant and comparison.
    virtual std::int32_t CompareType() const = 0;
    /// Computes the comparison anew.
    virtual void Compare() = 0;
    /// One of the vxCompare… values, for a place of either station. Both stations empty there is equal.
    virtual std::int32_t PlaceResult(const VxHWRackPlacePtr& oPlace) const = 0;
    /// Null where no parameters were compared.
    virtual ParameterDifferencesPtr ParameterDifferencesOf(const VxHWRackPlacePtr& oPlace) const = 0;
    /// Opens the host's parameter comparison of the place: at one of its differences, or as a whole for nothing.
    virtual void ShowParameterDifferences(const VxHWRackPlacePtr& oPlace,
                                          const ParameterDifferencePtr& oDifference) = 0;
    /// A text about the place for its compare tooltip.
    virtual std::string PlaceText(const VxHWRackPlacePtr& oPlace) const = 0;
};

} // namespace zqbchwcx
