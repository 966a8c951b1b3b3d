#include "zqbchwcx/controllers/StationController.h"

#include "zqbchwcx/foundation/Nothing.h"

#include <utility>

namespace zqbchwcx {

VxHWStationPtr StationController::VxHWStation() const noexcept
{
    return moStation;
}

void StationController::VxHWStation(VxHWStationPtr oStation) noexcept
{
    moStation = std::move(oStation);
}

VxHWSelectionHandlerPtr StationController::VxHWSelectionHandler() const noexcept
{
    return moSelHandler;
}

void StationController::VxHWSelectionHandler(VxHWSelectionHandlerPtr oSelectionHandler) noexcept
{
    moSelHandler = std::move(oSelectionHandler);
}

VxHWCompareServicePtr StationController::VxHWCompareService() const noexcept
{
    return nullptr;
}

void StationController::VxHWCompareService(VxHWCompareServicePtr /*oCompareService*/) noexcept {}

VxHWDiagServicePtr StationController::VxHWDiagService() const noexcept
{
    return nullptr;
}

void StationController::VxHWDiagService(VxHWDiagServicePtr /*oDiagService*/) noexcept {}

void StationController::AddSubscriber(const IVxHWDragDropCtrlEventsPtr& /*oSubscriber*/) noexcept {}

void StationController::RemoveAllSubscribers() noexcept {}

VxHWStationPtr StationController::Station() const
{
    if (!moStation) throw VxError(vxErrorNothing, "The station is not set");
    return moStation;
}

VxHWSelectionHandlerPtr StationController::SelHandler() const
{
    if (!moSelHandler) throw VxError(vxErrorNothing, "The selection handler is not set");
    return moSelHandler;
}

} // namespace zqbchwcx
