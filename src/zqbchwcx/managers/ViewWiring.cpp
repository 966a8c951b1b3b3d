#include "zqbchwcx/managers/ViewWiring.h"

#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"

namespace zqbchwcx {
namespace {

/// Views and controllers have the same properties for the services.
template <class Target>
void SetService(Target& target, ModeService eService, const ViewWiring& wiring)
{
    if (eService == ModeService::Compare) target.VxHWCompareService(wiring.oCompareService);
    else if (eService == ModeService::Diag) target.VxHWDiagService(wiring.oDiagService);
}

void SetObjects(IVxHWControl& view, ModeService eService, const ViewWiring& wiring)
{
    view.VxHWStation(wiring.oStation);
    SetService(view, eService, wiring);
    view.VxHWSelectionHandler(wiring.oSelHandler);
    view.VxHWMouseInputController(wiring.oiMouseInput);
    view.VxHWKeyInputController(wiring.oiKeyInput);
    view.VxHWDragDropController(wiring.oiDragDrop);
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

void G_ConnectController(IVxHWController& controller, const ViewWiring& wiring)
{
    SetObjects(controller, wiring.eService, wiring);
}

void G_DisconnectController(IVxHWController& controller, ModeService eService)
{
    SetObjects(controller, eService, {});
}

std::int32_t G_FirstUsablePlace(const VxHWStationPtr& oStation)
{
    for (const auto& oPlace : G_RackByNumber(oStation, 0)->Places())
        if (oPlace->Usability() != vxPlaceNotUsable) return oPlace->Number();
    return 0;
}

} // namespace zqbchwcx
