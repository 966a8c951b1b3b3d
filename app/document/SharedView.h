#pragma once

#include "zqbchwcx/foundation/model/VxHWStation.h"
#include "zqbchwcx/reference/history/ViewState.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

namespace quillon_ed {

/// Selection, focus and anchor as they are now. Reports errors.
zqbchwcx::reference::ViewState CaptureView(const zqbchwcx::VxHWSelectionHandler& handler);

/// Selects and focuses as the state says; positions that the station does not have are left out. Reports errors.
void ShowView(zqbchwcx::VxHWSelectionHandler& handler, const zqbchwcx::VxHWStation& station,
              const zqbchwcx::reference::ViewState& state);

} // namespace quillon_ed
