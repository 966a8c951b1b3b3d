#pragma once

#include "zqbchwcx/controllers/NavigationController.h"
#include "zqbchwcx/controllers/ServiceKeeper.h"

namespace zqbchwcx {

/// The mouse in diagnostics mode: a double click opens the diagnostics of the module, or of the sub-module whose line
/// it hits.
class VxHWDiagCtrlMouse : public DiagServiceKeeper<NavigationMouse> {
public:
    VxHWDiagCtrlMouse() noexcept;

private:
    void Open(const VxHWRackPlacePtr& oPlace, std::int32_t lSubModuleLine) override;
};

} // namespace zqbchwcx
