#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWDragDropCtrlEvents.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <memory>

namespace zqbchwcx {

class VxHWSelectionHandler;
using VxHWSelectionHandlerPtr = std::shared_ptr<VxHWSelectionHandler>;

/// What a manager hands to every controller. A put stores the reference, or is ignored by a controller that has no
/// use for it; the get then returns nothing.
class IVxHWController {
public:
    virtual ~IVxHWController() = default;

    virtual VxHWStationPtr VxHWStation() const noexcept = 0;
    virtual void VxHWStation(VxHWStationPtr oStation) noexcept = 0;
    virtual VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept = 0;
    virtual void VxHWSelectionHandler(VxHWSelectionHandlerPtr oSelectionHandler) noexcept = 0;
    virtual VxHWCompareServicePtr VxHWCompareService() const noexcept = 0;
    virtual void VxHWCompareService(VxHWCompareServicePtr oCompareService) noexcept = 0;
    virtual VxHWDiagServicePtr VxHWDiagService() const noexcept = 0;
    virtual void VxHWDiagService(VxHWDiagServicePtr oDiagService) noexcept = 0;
    /// The controller holds its subscribers weakly.
    virtual void AddSubscriber(const IVxHWDragDropCtrlEventsPtr& oSubscriber) noexcept = 0;
    virtual void RemoveAllSubscribers() noexcept = 0;
};
using IVxHWControllerPtr = std::shared_ptr<IVxHWController>;

} // namespace zqbchwcx
