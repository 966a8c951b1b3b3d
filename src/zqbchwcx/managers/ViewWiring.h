#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/controllers/interfaces/IVxHWController.h"

#include <cstdint>

namespace zqbchwcx {

/// The model's service that a mode has beside the station.
enum class ModeService { None, Compare, Diag };

/// What a manager hands to the views and the controllers of its mode.
struct ViewWiring {
    ModeService eService = ModeService::None;
    VxEnumStationType eStationType = vxStationTypeCentral;
    VxEnumStyle eStyle = vxStyleHWConfig;
    VxHWStationPtr oStation;
    VxHWCompareServicePtr oCompareService;
    VxHWDiagServicePtr oDiagService;
    VxHWSelectionHandlerPtr oSelHandler;
    IVxHWMouseInputControllerPtr oiMouseInput;
    IVxHWKeyInputControllerPtr oiKeyInput;
    IVxHWDragDropControllerPtr oiDragDrop;
};

/// Sets everything on the view: what it shows before what it shows it of, the controllers last.
void G_ConnectView(IVxHWControl& view, const ViewWiring& wiring);
/// Takes away what the mode has set.
void G_DisconnectView(IVxHWControl& view, ModeService eService);

void G_ConnectController(IVxHWController& controller, const ViewWiring& wiring);
void G_DisconnectController(IVxHWController& controller, ModeService eService);

/// The number of the first place of rack 0 that can be used, where focus and selection start; 0 for none.
std::int32_t G_FirstUsablePlace(const VxHWStationPtr& oStation);

} // namespace zqbchwcx
