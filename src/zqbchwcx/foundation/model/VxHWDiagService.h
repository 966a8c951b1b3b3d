#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>

namespace zqbchwcx {

/// The diagnostic state of the modules of a station.
class VxHWDiagService {
public:
    virtual ~VxHWDiagService() = default;

    /// The station whose diagnostics are served; null when the mode ends.
    virtual void Station(const VxHWStationPtr& oStation) = 0;
    /// 10 RUN, 11 STOP, 12 HOLD, other: none.
    virtual std::int32_t CpuState(const VxHWRackPlacePtr& oPlace) const = 0;
    /// Non-zero when the module reports a failure.
    virtual std::int32_t HasFailure(const VxHWRackPlacePtr& oPlace) const = 0;
    virtual bool HasDiagState(const VxHWRackPlacePtr& oPlace, std::int32_t lCategory) const = 0;
    /// Whether there is more to tell about the module of the place, or about its sub-module when that is not null.
    virtual bool HasDiagnosticInfo(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) const = 0;
};

} // namespace zqbchwcx
