#pragma once

#include "zqbchwcx/controllers/StationController.h"
#include "zqbchwcx/foundation/Nothing.h"

#include <utility>

namespace zqbchwcx {

/// A controller that has a use for the diagnostics service: it keeps what its manager sets.
template <class Controller>
class DiagServiceKeeper : public Controller {
public:
    VxHWDiagServicePtr VxHWDiagService() const noexcept override { return moService; }
    void VxHWDiagService(VxHWDiagServicePtr oService) noexcept override { moService = std::move(oService); }

protected:
    using Controller::Controller;

    /// Kept alive for the caller. Throws VxError when there is none.
    VxHWDiagServicePtr Service() const { return G_Require(moService, "The diagnostics service"); }

private:
    VxHWDiagServicePtr moService;
};

/// The same for the compare service.
template <class Controller>
class CompareServiceKeeper : public Controller {
public:
    VxHWCompareServicePtr VxHWCompareService() const noexcept override { return moService; }
    void VxHWCompareService(VxHWCompareServicePtr oService) noexcept override { moService = std::move(oService); }

protected:
    using Controller::Controller;

    VxHWCompareServicePtr Service() const { return G_Require(moService, "The compare service"); }

private:
    VxHWCompareServicePtr moService;
};

} // namespace zqbchwcx
