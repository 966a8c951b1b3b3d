#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWDragDropController.h"
#include "zqbchwcx/foundation/Registration.h"

#include <string_view>

namespace zqbchwcx {

/// The drag-and-drop controller of modes without drag and drop: it keeps nothing, lets no drag start and takes no
/// drop. Effects stay as they come in.
class InertDragDropController : public IVxHWController, public IVxHWDragDropController {
public:
    VxHWStationPtr VxHWStation() const noexcept override { return nullptr; }
    void VxHWStation(VxHWStationPtr) noexcept override {}
    VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept override { return nullptr; }
    void VxHWSelectionHandler(VxHWSelectionHandlerPtr) noexcept override {}
    VxHWCompareServicePtr VxHWCompareService() const noexcept override { return nullptr; }
    void VxHWCompareService(VxHWCompareServicePtr) noexcept override {}
    VxHWDiagServicePtr VxHWDiagService() const noexcept override { return nullptr; }
    void VxHWDiagService(VxHWDiagServicePtr) noexcept override {}
    void AddSubscriber(const IVxHWDragDropCtrlEventsPtr&) noexcept override {}
    void RemoveAllSubscribers() noexcept override {}

    VxEnumDragDropStates State() const noexcept override { return vxDragDropStateInactive; }
    std::int32_t DropPosition() const noexcept override { return 0; }
    VxHWModulesPtr DragModules() const noexcept override { return nullptr; }
    Array2D<std::int32_t> PossibleDropPlaces() const noexcept override { return {}; }
    void OLEStartDrag(const DataObjectPtr&, std::int32_t&) noexcept override {}
    void OLESetData(const DataObjectPtr&, std::int16_t) noexcept override {}
    void OLEDragOver(std::int32_t, const DataObjectPtr&, std::int32_t&, std::int16_t, std::int16_t,
                     std::int16_t) noexcept override
    {
    }
    void OLEDragDrop(std::int32_t, const DataObjectPtr&, std::int32_t&, std::int16_t, std::int16_t) noexcept override {}
    void OLECompleteDrag(std::int32_t&) noexcept override {}
    bool IsDropPlace(const VxHWRackPlacePtr&) const noexcept override { return false; }
    bool IsValidDragPosition(std::int32_t) const noexcept override { return false; }

protected:
    /// Registers the object under the class name, a literal.
    explicit InertDragDropController(std::string_view className) noexcept : mRegistration(className) {}

private:
    InstanceRegistration mRegistration;
};

} // namespace zqbchwcx
