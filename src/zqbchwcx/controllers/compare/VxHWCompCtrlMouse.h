#pragma once

#include "zqbchwcx/controllers/NavigationController.h"
#include "zqbchwcx/controllers/ServiceKeeper.h"

namespace zqbchwcx {

/// The mouse in compare mode: a double click opens the comparison of the parameters, in comparisons of type 0 only.
class VxHWCompCtrlMouse : public CompareServiceKeeper<NavigationMouse> {
public:
    VxHWCompCtrlMouse() noexcept;

private:
    void Open(const VxHWRackPlacePtr& oPlace, std::int32_t lSubModuleLine) override;
};

} // namespace zqbchwcx
