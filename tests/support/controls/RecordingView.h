#pragma once

#include "controllers/interfaces/IVxHWControl.h"
#include "tests/support/services/CallLog.h"

namespace zqbchwcx::testing {

/// A view that keeps what a manager gives it, and leaves a line for each put: "overview.Style 1",
/// "overview.VxHWStation nothing".
class RecordingView : public IVxHWControl, public IVxHWDragDropCtrlEvents, public Logged {
public:
    RecordingView(CallLogPtr log, std::string name) : Logged(std::move(log)), msName(std::move(name)) {}

    bool Locked() const noexcept override { return locked; }
    void Locked(bool bLocked) noexcept override { PutNumber("Locked", locked, bLocked); }
    VxEnumStationType StationType() const noexcept override { return stationType; }
    void StationType(VxEnumStationType eType) noexcept override { PutNumber("StationType", stationType, eType); }
    VxEnumStyle Style() const noexcept override { return style; }
    void Style(VxEnumStyle eStyle) noexcept override { PutNumber("Style", style, eStyle); }
    VxHWStationPtr VxHWStation() const noexcept override { return station; }
    void VxHWStation(VxHWStationPtr o) noexcept override { Put("VxHWStation", station, std::move(o)); }
    VxHWCompareServicePtr VxHWCompareService() const noexcept override { return compareService; }
    void VxHWCompareService(VxHWCompareServicePtr o) noexcept override
    {
        Put("VxHWCompareService", compareService, std::move(o));
    }
    VxHWDiagServicePtr VxHWDiagService() const noexcept override { return diagService; }
    void VxHWDiagService(VxHWDiagServicePtr o) noexcept override { Put("VxHWDiagService", diagService, std::move(o)); }
    VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept override { return handler; }
    void VxHWSelectionHandler(VxHWSelectionHandlerPtr o) noexcept override
    {
        Put("VxHWSelectionHandler", handler, std::move(o));
    }
    IVxHWMouseInputControllerPtr VxHWMouseInputController() const noexcept override { return mouse; }
    void VxHWMouseInputController(IVxHWMouseInputControllerPtr o) noexcept override
    {
        Put("VxHWMouseInputController", mouse, std::move(o));
    }
    IVxHWKeyInputControllerPtr VxHWKeyInputController() const noexcept override { return key; }
    void VxHWKeyInputController(IVxHWKeyInputControllerPtr o) noexcept override
    {
        Put("VxHWKeyInputController", key, std::move(o));
    }
    IVxHWDragDropControllerPtr VxHWDragDropController() const noexcept override { return dragDrop; }
    void VxHWDragDropController(IVxHWDragDropControllerPtr o) noexcept override
    {
        Put("VxHWDragDropController", dragDrop, std::move(o));
    }
    void Refresh() noexcept override { Line("Refresh"); }

    void StateChange(VxEnumDragDropStates ePreviousValue) noexcept override
    {
        Line("StateChange from " + std::to_string(ePreviousValue));
    }

    bool locked = false;
    VxEnumStationType stationType = vxStationTypeCentral;
    VxEnumStyle style = vxStyleHWCompare;
    VxHWStationPtr station;
    VxHWCompareServicePtr compareService;
    VxHWDiagServicePtr diagService;
    VxHWSelectionHandlerPtr handler;
    IVxHWMouseInputControllerPtr mouse;
    IVxHWKeyInputControllerPtr key;
    IVxHWDragDropControllerPtr dragDrop;

private:
    void Line(const std::string& text) { moLog->lines.push_back(msName + "." + text); }
    template <class Value>
    void PutNumber(const std::string& property, Value& field, Value value)
    {
        field = value;
        Line(property + " " + std::to_string(static_cast<int>(value)));
    }
    template <class Pointer>
    void Put(const std::string& property, Pointer& field, Pointer value)
    {
        field = std::move(value);
        Line(property + (field ? " set" : " nothing"));
    }

    std::string msName;
};

} // namespace zqbchwcx::testing
