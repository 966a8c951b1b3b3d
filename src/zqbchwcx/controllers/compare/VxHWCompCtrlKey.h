#pragma once

#include "zqbchwcx/controllers/NavigationController.h"
#include "zqbchwcx/controllers/ServiceKeeper.h"

namespace zqbchwcx {

/// The keys in compare mode: Return opens the comparison of the parameters, whatever the comparison's type.
class VxHWCompCtrlKey : public CompareServiceKeeper<NavigationKey> {
public:
    VxHWCompCtrlKey() noexcept;

private:
    void Open(const VxHWRackPlacePtr& oPlace) override;
};

} // namespace zqbchwcx
