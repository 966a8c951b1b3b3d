#pragma once

#include "foundation/model/Collection.h"
#include "foundation/model/Fwd.h"

#include <cstdint>
#include <memory>
#include <string>

namespace zqbchwcx {

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
    virtual ParameterDifferencesPtr ParameterDifferencesOf(const VxHWRackPlacePtr& oPlace) const = 0;
    /// Opens the host's parameter comparison of the place as a whole.
    virtual void ShowParameterDifferences(const VxHWRackPlacePtr& oPlace) = 0;
    /// A text about the place for its compare tooltip.
    virtual std::string PlaceText(const VxHWRackPlacePtr& oPlace) const = 0;
};

} // namespace zqbchwcx
