#pragma once

#include "zqbchwcx/reference/model/PlaceRef.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <optional>

class QWidget;

namespace zqbchwcx::reference {
class Station;
}

namespace quillon_ed {

class AppServices;

/// Lets the user configure the module in the place anew; nothing when it stays as it is.
std::optional<zqbchwcx::reference::ModuleData> EditParameters(AppServices& services,
                                                              const zqbchwcx::reference::Station& station,
                                                              const zqbchwcx::reference::ModuleData& module,
                                                              zqbchwcx::reference::PlaceRef place, QWidget* parent);

} // namespace quillon_ed
