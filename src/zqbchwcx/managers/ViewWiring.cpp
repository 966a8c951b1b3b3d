#include "zqbchwcx/managers/ViewWiring.h"

namespace zqbchwcx {
namespace {

/// Views and controllers have the same properties for the services.
template <class Target>
void SetService(Target& target, ModeService eService, const ViewWiring& wiring)
{
    if (eService == ModeService::Compare) target.VxHWCompareService(wiring.oCompareService);
    else if (eService == ModeService::Diag) target.VxHWDiagService(wiring.oDiagService);
}

void SetContent(IVxHWControl& view, ModeService eService, const ViewWiring& wiring)
{
    view.VxHWStation(wiring.oStation);
    SetService(view, eService, wiring);
    view.VxHWSelectionHandler(wiring.oSelHandler);
}

void SetObjects(IVxHWControl& view, ModeService eService, const ViewWiring& wiring)
{
    SetContent(view, eService, wiring);
    view.VxHWMouseInputController(wiring.oiMouseInput);
    view.VxHWKeyInputController(wiring.oiKeyInput);
    view.VxHWDragDropController(wiring.oiDragDrop);
}

void SetContent(IVxHWCompareControl& view, const ViewWiring& wiring)
{
    view.VxHWStation1(wiring.oStation);
    view.VxHWStation2(wiring.oStation2);
    view.VxHWCompareService(wiring.oCompareService);
    view.VxHWSelectionHandler(wiring.oSelHandler);
}

void SetObjects(IVxHWCompareControl& view, const ViewWiring& wiring)
{
    SetContent(view, wiring);
    view.VxHWMouseInputController(wiring.oiMouseInput);
    view.VxHWKeyInputController(wiring.oiKeyInput);
}

void SetObjects(IVxHWController& controller, ModeService eService, const ViewWiring& wiring)
{
    controller.VxHWStation(wiring.oStation);
    controller.VxHWSelectionHandler(wiring.oSelHandler);
    SetService(controller, eService, wiring);
}

} // namespace

void G_ConnectView(IVxHWControl& view, const ViewWiring& wiring)
{
    view.StationType(wiring.eStationType);
    view.Style(wiring.eStyle);
    SetObjects(view, wiring.eService, wiring);
}

void G_DisconnectView(IVxHWControl& view, ModeService eService)
{
    SetObjects(view, eService, {});
}

void G_ConnectPanel(IVxHWControl& panel, const ViewWiring& wiring)
{
    SetContent(panel, ModeService::Diag, wiring);
}

void G_DisconnectPanel(IVxHWControl& panel)
{
    SetContent(panel, ModeService::Diag, {});
}

void G_ConnectCompareTable(IVxHWCompareControl& table, const ViewWiring& wiring)
{
    table.StationType(wiring.eStationType);
    table.HWCompareType(wiring.eCompareType);
    SetObjects(table, wiring);
}

void G_DisconnectCompareTable(IVxHWCompareControl& table)
{
    SetObjects(table, {});
}

void G_ConnectDeltaList(IVxHWCompareControl& list, const ViewWiring& wiring)
{
    list.HWCompareType(wiring.eCompareType);
    SetContent(list, wiring);
}

void G_DisconnectDeltaList(IVxHWCompareControl& list)
{
    SetContent(list, {});
}

void G_ConnectController(IVxHWController& controller, const ViewWiring& wiring)
{
    SetObjects(controller, wiring.eService, wiring);
}

void G_DisconnectController(IVxHWController& controller, ModeService eService)
{
    SetObjects(controller, eService, {});
}

} // namespace zqbchwcx
