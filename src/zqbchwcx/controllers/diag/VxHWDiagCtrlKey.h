#pragma once

#include "zqbchwcx/controllers/NavigationController.h"
#include "zqbchwcx/controllers/ServiceKeeper.h"

namespace zqbchwcx {

/// The keys in diagnostics mode: Return opens the diagnostics of the module that has the focus.
class VxHWDiagCtrlKey : public DiagServiceKeeper<NavigationKey> {
public:
    VxHWDiagCtrlKey() noexcept;

private:
    void Open(const VxHWRackPlacePtr& oPlace) override;
};

} // namespace zqbchwcx
