#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWController.h"
#include "zqbchwcx/foundation/Registration.h"

#include <string_view>

namespace zqbchwcx {

/// What every controller that acts on a station keeps: the station and the selection handler. The services and the
/// subscribers are ignored, unless a controller has a use for them.
class StationController : public IVxHWController {
public:
    VxHWStationPtr VxHWStation() const noexcept override;
    void VxHWStation(VxHWStationPtr oStation) noexcept override;
    VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept override;
    void VxHWSelectionHandler(VxHWSelectionHandlerPtr oSelectionHandler) noexcept override;
    VxHWCompareServicePtr VxHWCompareService() const noexcept override;
    void VxHWCompareService(VxHWCompareServicePtr oCompareService) noexcept override;
    VxHWDiagServicePtr VxHWDiagService() const noexcept override;
    void VxHWDiagService(VxHWDiagServicePtr oDiagService) noexcept override;
    void AddSubscriber(const IVxHWDragDropCtrlEventsPtr& oSubscriber) noexcept override;
    void RemoveAllSubscribers() noexcept override;

protected:
    /// Registers the object under the class name, a literal.
    explicit StationController(std::string_view className) noexcept : mRegistration(className) {}

    std::string_view className() const { return mRegistration.className(); }
    /// The station, kept alive for the caller: an event may make the host drop it in the middle of an operation.
    /// Throws VxError when there is none.
    VxHWStationPtr Station() const;
    /// The selection handler; otherwise as `Station`.
    VxHWSelectionHandlerPtr SelHandler() const;

private:
    InstanceRegistration mRegistration;
    VxHWStationPtr moStation;
    VxHWSelectionHandlerPtr moSelHandler;
};

} // namespace zqbchwcx
