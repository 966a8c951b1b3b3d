#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWDragDropController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWKeyInputController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWMouseInputController.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <memory>

namespace zqbchwcx {

/// A view of configuration or diagnostics mode, as its manager sees it.
class IVxHWControl {
public:
    virtual ~IVxHWControl() = default;

    /// Whether the content cannot be edited.
    virtual bool Locked() const noexcept = 0;
    virtual void Locked(bool bLocked) noexcept = 0;
    virtual VxEnumStationType StationType() const noexcept = 0;
    virtual void StationType(VxEnumStationType eStationType) noexcept = 0;
    virtual VxEnumStyle Style() const noexcept = 0;
    virtual void Style(VxEnumStyle eStyle) noexcept = 0;
    virtual VxHWStationPtr VxHWStation() const noexcept = 0;
    virtual void VxHWStation(VxHWStationPtr oStation) noexcept = 0;
    virtual VxHWCompareServicePtr VxHWCompareService() const noexcept = 0;
    virtual void VxHWCompareService(VxHWCompareServicePtr oCompareService) noexcept = 0;
    virtual VxHWDiagServicePtr VxHWDiagService() const noexcept = 0;
    virtual void VxHWDiagService(VxHWDiagServicePtr oDiagService) noexcept = 0;
    virtual VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept = 0;
    virtual void VxHWSelectionHandler(VxHWSelectionHandlerPtr oSelectionHandler) noexcept = 0;
    virtual IVxHWMouseInputControllerPtr VxHWMouseInputController() const noexcept = 0;
    virtual void VxHWMouseInputController(IVxHWMouseInputControllerPtr oController) noexcept = 0;
    virtual IVxHWKeyInputControllerPtr VxHWKeyInputController() const noexcept = 0;
    virtual void VxHWKeyInputController(IVxHWKeyInputControllerPtr oController) noexcept = 0;
    virtual IVxHWDragDropControllerPtr VxHWDragDropController() const noexcept = 0;
    virtual void VxHWDragDropController(IVxHWDragDropControllerPtr oController) noexcept = 0;
    virtual void Refresh() noexcept = 0;
};
using IVxHWControlPtr = std::shared_ptr<IVxHWControl>;

} // namespace zqbchwcx
