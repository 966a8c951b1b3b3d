#pragma once

#include "controllers/interfaces/IVxHWControl.h"

namespace quillon_ed {

/// Stands for a view that the window does not have: it keeps what a manager hands out and shows nothing.
class QuietView : public zqbchwcx::IVxHWControl {
public:
    bool Locked() const noexcept override { return mbLocked; }
    void Locked(bool bLocked) noexcept override { mbLocked = bLocked; }
    zqbchwcx::VxEnumStationType StationType() const noexcept override { return meStationType; }
    void StationType(zqbchwcx::VxEnumStationType eStationType) noexcept override { meStationType = eStationType; }
    zqbchwcx::VxEnumStyle Style() const noexcept override { return meStyle; }
    void Style(zqbchwcx::VxEnumStyle eStyle) noexcept override { meStyle = eStyle; }
    zqbchwcx::VxHWStationPtr VxHWStation() const noexcept override { return moStation; }
    void VxHWStation(zqbchwcx::VxHWStationPtr oStation) noexcept override { moStation = std::move(oStation); }
    zqbchwcx::VxHWCompareServicePtr VxHWCompareService() const noexcept override { return moCompareService; }
    void VxHWCompareService(zqbchwcx::VxHWCompareServicePtr oCompareService) noexcept override
    {
        moCompareService = std::move(oCompareService);
    }
    zqbchwcx::VxHWDiagServicePtr VxHWDiagService() const noexcept override { return moDiagService; }
    void VxHWDiagService(zqbchwcx::VxHWDiagServicePtr oDiagService) noexcept override
    {
        moDiagService = std::move(oDiagService);
    }
    zqbchwcx::VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept override { return moSelHandler; }
    void VxHWSelectionHandler(zqbchwcx::VxHWSelectionHandlerPtr oSelectionHandler) noexcept override
    {
        moSelHandler = std::move(oSelectionHandler);
    }
    zqbchwcx::IVxHWMouseInputControllerPtr VxHWMouseInputController() const noexcept override { return moCtrlMouse; }
    void VxHWMouseInputController(zqbchwcx::IVxHWMouseInputControllerPtr oController) noexcept override
    {
        moCtrlMouse = std::move(oController);
    }
    zqbchwcx::IVxHWKeyInputControllerPtr VxHWKeyInputController() const noexcept override { return moCtrlKey; }
    void VxHWKeyInputController(zqbchwcx::IVxHWKeyInputControllerPtr oController) noexcept override
    {
        moCtrlKey = std::move(oController);
    }
    zqbchwcx::IVxHWDragDropControllerPtr VxHWDragDropController() const noexcept override { return moCtrlDD; }
    void VxHWDragDropController(zqbchwcx::IVxHWDragDropControllerPtr oController) noexcept override
    {
        moCtrlDD = std::move(oController);
    }
    void Refresh() noexcept override {}

private:
    bool mbLocked = false;
    zqbchwcx::VxEnumStationType meStationType = zqbchwcx::vxStationTypeCentral;
    zqbchwcx::VxEnumStyle meStyle = zqbchwcx::vxStyleHWConfig;
    zqbchwcx::VxHWStationPtr moStation;
    zqbchwcx::VxHWCompareServicePtr moCompareService;
    zqbchwcx::VxHWDiagServicePtr moDiagService;
    zqbchwcx::VxHWSelectionHandlerPtr moSelHandler;
    zqbchwcx::IVxHWMouseInputControllerPtr moCtrlMouse;
    zqbchwcx::IVxHWKeyInputControllerPtr moCtrlKey;
    zqbchwcx::IVxHWDragDropControllerPtr moCtrlDD;
};

} // namespace quillon_ed
