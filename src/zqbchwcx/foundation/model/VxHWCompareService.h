#pragma once

#include "zqbchwcx/foundation/model/Collection.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <memory>
#include <string>

namespace zqbchwcx {

/// One parameter that differs.
class ParameterDifference {
public:
    virtual ~ParameterDifference() = default;
};
using ParameterDifferencePtr = std::shared_ptr<ParameterDifference>;

/// The parameter differences of a place.
class ParameterDifferences {
public:
    virtual ~ParameterDifferences() = default;
};
using ParameterDifferencesPtr = std::shared_ptr<ParameterDifferences>;

/// The comparison of two stations.
class VxHWCompareService {
public:
    virtual ~VxHWCompareService() = default;

    virtual std::int32_t CompareType() const = 0;
    /// Computes the comparison anew.
    virtual void Compare() = 0;
    /// One of the vxCompare… values.
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
