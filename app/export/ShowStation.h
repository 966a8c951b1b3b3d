#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

namespace zqbchwcx {
class VxHWRackOverview;
}

namespace quillon_ed {

/// Shows the station in the view just to be looked at: nothing is selected, focused or dragged.
void ShowStation(zqbchwcx::VxHWRackOverview& view, const zqbchwcx::VxHWStationPtr& station);

} // namespace quillon_ed
