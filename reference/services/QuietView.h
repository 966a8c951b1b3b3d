#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"

namespace zqbchwcx::reference {

/// Stands for a view that a host does not have: it keeps what a manager hands out and shows nothing.
class QuietView : public IVxHWControl {
public:
    bool Locked() const noexcept override { return mbLocked; }
    void Locked(bool bLocked) noexcept override { mbLocked = bLocked; }
    VxEnumStationType StationType() const noexcept override { return meStationType; }
    void StationType(VxEnumStationType eStationType) noexcept override { meStationType = eStationType; }
    VxEnumStyle Style() const noexcept override { return meStyle; }
    void Style(VxEnumStyle eStyle) noexcept override { meStyle = eStyle; }
    VxHWStationPtr VxHWStation() const noexcept override { return moStation; }
    void VxHWStation(VxHWStationPtr oStation) noexcept override { moStation = std::move(oStation); }
    VxHWCompareServicePtr VxHWCompareService() const noexcept override { return moCompareService; }
    void VxHWCompareService(VxHWCompareServicePtr oCompareService) noexcept override
    {
        moCompareService = std::move(oCompareService);
    }
    VxHWDiagServicePtr VxHWDiagService() const noexcept override { return moDiagService; }
    void VxHWDiagService(VxHWDiagServicePtr oDiagService) noexcept override { moDiagService = std::move(oDiagService); }
    VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept override { return moSelHandler; }
    void VxHWSelectionHandler(VxHWSelectionHandlerPtr oSelectionHandler) noexcept override
    {
        moSelHandler = std::move(oSelectionHandler);
    }
    IVxHWMouseInputControllerPtr VxHWMouseInputController() const noexcept override { return moCtrlMouse; }
    void VxHWMouseInputController(IVxHWMouseInputControllerPtr oController) noexcept override
    {
        moCtrlMouse = std::move(oController);
    }
    IVxHWKeyInputControllerPtr VxHWKeyInputController() const noexcept override { return moCtrlKey; }
    void VxHWKeyInputController(IVxHWKeyInputControllerPtr oController) noexcept override
    {
        moCtrlKey = std::move(oController);
    }
    IVxHWDragDropControllerPtr VxHWDragDropController() const noexcept override { return moCtrlDD; }
    void VxHWDragDropController(IVxHWDragDropControllerPtr oController) noexcept override
    {
        moCtrlDD = std::move(oController);
    }
    void Refresh() noexcept override {}

private:
    bool mbLocked = false;
    VxEnumStationType meStationType = vxStationTypeCentral;
    VxEnumStyle meStyle = vxStyleHWConfig;
    VxHWStationPtr moStation;
    VxHWCompareServicePtr moCompareService;
    VxHWDiagServicePtr moDiagService;
    VxHWSelectionHandlerPtr moSelHandler;
    IVxHWMouseInputControllerPtr moCtrlMouse;
    IVxHWKeyInputControllerPtr moCtrlKey;
    IVxHWDragDropControllerPtr moCtrlDD;
};

} // namespace zqbchwcx::reference
