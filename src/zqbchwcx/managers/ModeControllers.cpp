#include "zqbchwcx/managers/ModeControllers.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

namespace zqbchwcx {
namespace {

std::int32_t FirstUsablePlace(const VxHWStationPtr& oStation)
{
    for (const auto& oPlace : G_RackByNumber(oStation, 0)->Places())
        if (oPlace->Usability() != vxPlaceNotUsable) return oPlace->Number();
    return 0;
}

} // namespace

void ModeControllers::MakeHandler()
{
    moSelHandler = std::make_shared<VxHWSelectionHandler>();
}

void ModeControllers::AddTo(ViewWiring& wiring) const
{
    wiring.oSelHandler = moSelHandler;
    wiring.oiMouseInput = moiMouseInput;
    wiring.oiKeyInput = moiKeyInput;
    wiring.oiDragDrop = moiDragDrop;
}

void ModeControllers::Connect(const ViewWiring& wiring) const
{
    G_Require(moSelHandler, "The selection handler")->VxHWStation(wiring.oStation);
    G_ConnectController(*G_Require(moMouse, "The mouse controller"), wiring);
    G_ConnectController(*G_Require(moKey, "The key controller"), wiring);
}

void ModeControllers::Disconnect(ModeService eService) const
{
    if (const auto oHandler = moSelHandler) oHandler->VxHWStation(nullptr);
    for (const auto& oController : {moMouse, moKey})
        if (oController) G_DisconnectController(*oController, eService);
}

std::int32_t G_StartFocus(const VxHWStationPtr& oStation, const VxHWSelectionHandlerPtr& oSelHandler)
{
    const std::int32_t lNumber = FirstUsablePlace(oStation);
    const auto oHandler = G_Require(oSelHandler, "The selection handler");
    oHandler->ShiftSelPosition(G_PlacePosition(0, lNumber));
    oHandler->FocusPosition(G_PlacePosition(0, lNumber));
    return lNumber;
}

} // namespace zqbchwcx
