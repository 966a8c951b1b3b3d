#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWCompareControl.h"
#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/controllers/interfaces/IVxHWController.h"

namespace zqbchwcx {

/// The model's service that a mode has beside the station.
enum class ModeService { None, Compare, Diag };

/// What a manager hands to the views and the controllers of its mode.
struct ViewWiring {
    ModeService eService = ModeService::None;
    VxEnumStationType eStationType = vxStationTypeCentral;
    VxEnumStyle eStyle = vxStyleHWConfig;
    HWCompareType eCompareType{};
    VxHWStationPtr oStation;
    VxHWStationPtr oStation2; ///< what the station is compared with
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

/// The panel of diagnostics mode takes no input and shows every kind of station alike.
void G_ConnectPanel(IVxHWControl& panel, const ViewWiring& wiring);
void G_DisconnectPanel(IVxHWControl& panel);

void G_ConnectCompareTable(IVxHWCompareControl& table, const ViewWiring& wiring);
void G_DisconnectCompareTable(IVxHWCompareControl& table);
/// The list of differences serves its input itself.
void G_ConnectDeltaList(IVxHWCompareControl& list, const ViewWiring& wiring);
void G_DisconnectDeltaList(IVxHWCompareControl& list);

void G_ConnectController(IVxHWController& controller, const ViewWiring& wiring);
void G_DisconnectController(IVxHWController& controller, ModeService eService);

} // namespace zqbchwcx
