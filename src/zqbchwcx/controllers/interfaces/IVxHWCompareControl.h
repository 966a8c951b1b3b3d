#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWKeyInputController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWMouseInputController.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <memory>

namespace zqbchwcx {

/// A view of compare mode, as its manager sees it.
class IVxHWCompareControl {
public:
    virtual ~IVxHWCompareControl() = default;

    virtual VxEnumStationType StationType() const noexcept = 0;
    virtual void StationType(VxEnumStationType eStationType) noexcept = 0;
    virtual zqbchwcx::HWCompareType HWCompareType() const noexcept = 0;
    virtual void HWCompareType(zqbchwcx::HWCompareType eCompareType) noexcept = 0;
    virtual VxHWStationPtr VxHWStation1() const noexcept = 0;
    virtual void VxHWStation1(VxHWStationPtr oStation) noexcept = 0;
    virtual VxHWStationPtr VxHWStation2() const noexcept = 0;
    virtual void VxHWStation2(VxHWStationPtr oStation) noexcept = 0;
    virtual VxHWCompareServicePtr VxHWCompareService() const noexcept = 0;
    virtual void VxHWCompareService(VxHWCompareServicePtr oCompareService) noexcept = 0;
    virtual VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept = 0;
    virtual void VxHWSelectionHandler(VxHWSelectionHandlerPtr oSelectionHandler) noexcept = 0;
    virtual IVxHWMouseInputControllerPtr VxHWMouseInputController() const noexcept = 0;
    virtual void VxHWMouseInputController(IVxHWMouseInputControllerPtr oController) noexcept = 0;
    virtual IVxHWKeyInputControllerPtr VxHWKeyInputController() const noexcept = 0;
    virtual void VxHWKeyInputController(IVxHWKeyInputControllerPtr oController) noexcept = 0;
    virtual void Refresh() noexcept = 0;
};
using IVxHWCompareControlPtr = std::shared_ptr<IVxHWCompareControl>;

} // namespace zqbchwcx
