#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWCompareControl.h"
#include "zqbchwcx/foundation/ObjectPtr.h"

#include <utility>

namespace zqbchwcx {

/// Stands for a view of compare mode that a host does not have: it keeps what a manager hands out and shows nothing.
class QuietCompareView : public IVxHWCompareControl {
public:
    VxEnumStationType StationType() const noexcept override { return meStationType; }
    void StationType(VxEnumStationType eStationType) noexcept override { meStationType = eStationType; }
    zqbchwcx::HWCompareType HWCompareType() const noexcept override { return meCompareType; }
    void HWCompareType(zqbchwcx::HWCompareType eCompareType) noexcept override { meCompareType = eCompareType; }
    VxHWStationPtr VxHWStation1() const noexcept override { return moStation1; }
    void VxHWStation1(VxHWStationPtr oStation) noexcept override { moStation1 = std::move(oStation); }
    VxHWStationPtr VxHWStation2() const noexcept override { return moStation2; }
    void VxHWStation2(VxHWStationPtr oStation) noexcept override { moStation2 = std::move(oStation); }
    VxHWCompareServicePtr VxHWCompareService() const noexcept override { return moService; }
    void VxHWCompareService(VxHWCompareServicePtr oService) noexcept override { moService = std::move(oService); }
    VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept override { return moHandler; }
    void VxHWSelectionHandler(VxHWSelectionHandlerPtr oHandler) noexcept override { moHandler = std::move(oHandler); }
    IVxHWMouseInputControllerPtr VxHWMouseInputController() const noexcept override { return moMouse; }
    void VxHWMouseInputController(IVxHWMouseInputControllerPtr oMouse) noexcept override
    {
        moMouse = std::move(oMouse);
    }
    IVxHWKeyInputControllerPtr VxHWKeyInputController() const noexcept override { return moKey; }
    void VxHWKeyInputController(IVxHWKeyInputControllerPtr oKey) noexcept override { moKey = std::move(oKey); }
    void Refresh() noexcept override {}

private:
    VxEnumStationType meStationType{};
    zqbchwcx::HWCompareType meCompareType{};
    VxHWStationPtr moStation1;
    VxHWStationPtr moStation2;
    VxHWCompareServicePtr moService;
    VxHWSelectionHandlerPtr moHandler;
    IVxHWMouseInputControllerPtr moMouse;
    IVxHWKeyInputControllerPtr moKey;
};

} // namespace zqbchwcx
