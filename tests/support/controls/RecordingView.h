#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/views/shared/QuietCompareView.h"
#include "zqbchwcx/views/shared/QuietView.h"

namespace zqbchwcx::testing {

/// Leaves a line for everything that a manager does to a view, as in "table.VxHWStation nothing" or "panel.Refresh".
class ViewLog : public Logged {
public:
    ViewLog(CallLogPtr log, std::string name) : Logged(std::move(log)), msName(std::move(name)) {}

protected:
    void Line(const std::string& line) const { moLog->lines.push_back(msName + "." + line); }
    /// The value itself, which is set after the line.
    template <class Value>
    Value Put(const std::string& property, Value value) const
    {
        if constexpr (std::is_enum_v<Value>) Line(property + " " + std::to_string(value));
        else Line(property + (value ? " set" : " nothing"));
        return value;
    }

private:
    std::string msName;
};

/// A view that keeps what a manager gives it. It also leaves a line when a drag goes on.
class RecordingView : public ViewLog, public zqbchwcx::QuietView, public IVxHWDragDropCtrlEvents {
public:
    using ViewLog::ViewLog;
    using View = zqbchwcx::QuietView;
    using View::Locked, View::StationType, View::Style, View::VxHWStation, View::VxHWCompareService,
        View::VxHWDiagService, View::VxHWSelectionHandler, View::VxHWMouseInputController, View::VxHWKeyInputController,
        View::VxHWDragDropController;

    void Locked(bool b) noexcept override { Line("Locked"), View::Locked(b); }
    void StationType(VxEnumStationType e) noexcept override { View::StationType(Put("StationType", e)); }
    void Style(VxEnumStyle e) noexcept override { View::Style(Put("Style", e)); }
    void VxHWStation(VxHWStationPtr o) noexcept override { View::VxHWStation(Put("VxHWStation", o)); }
    void VxHWCompareService(VxHWCompareServicePtr o) noexcept override
    {
        View::VxHWCompareService(Put("VxHWCompareService", o));
    }
    void VxHWDiagService(VxHWDiagServicePtr o) noexcept override { View::VxHWDiagService(Put("VxHWDiagService", o)); }
    void VxHWSelectionHandler(VxHWSelectionHandlerPtr o) noexcept override
    {
        View::VxHWSelectionHandler(Put("VxHWSelectionHandler", o));
    }
    void VxHWMouseInputController(IVxHWMouseInputControllerPtr o) noexcept override
    {
        View::VxHWMouseInputController(Put("VxHWMouseInputController", o));
    }
    void VxHWKeyInputController(IVxHWKeyInputControllerPtr o) noexcept override
    {
        View::VxHWKeyInputController(Put("VxHWKeyInputController", o));
    }
    void VxHWDragDropController(IVxHWDragDropControllerPtr o) noexcept override
    {
        View::VxHWDragDropController(Put("VxHWDragDropController", o));
    }
    void Refresh() noexcept override { Line("Refresh"); }
    void StateChange(VxEnumDragDropStates ePreviousValue) noexcept override
    {
        Line("StateChange from " + std::to_string(ePreviousValue));
    }
};

class RecordingCompareView : public ViewLog, public QuietCompareView {
public:
    using ViewLog::ViewLog;
    using View = QuietCompareView;
    using View::StationType, View::HWCompareType, View::VxHWStation1, View::VxHWStation2, View::VxHWCompareService,
        View::VxHWSelectionHandler, View::VxHWMouseInputController, View::VxHWKeyInputController;

    void StationType(VxEnumStationType e) noexcept override { View::StationType(Put("StationType", e)); }
    void HWCompareType(zqbchwcx::HWCompareType e) noexcept override { View::HWCompareType(Put("HWCompareType", e)); }
    void VxHWStation1(VxHWStationPtr o) noexcept override { View::VxHWStation1(Put("VxHWStation1", o)); }
    void VxHWStation2(VxHWStationPtr o) noexcept override { View::VxHWStation2(Put("VxHWStation2", o)); }
    void VxHWCompareService(VxHWCompareServicePtr o) noexcept override
    {
        View::VxHWCompareService(Put("VxHWCompareService", o));
    }
    void VxHWSelectionHandler(VxHWSelectionHandlerPtr o) noexcept override
    {
        View::VxHWSelectionHandler(Put("VxHWSelectionHandler", o));
    }
    void VxHWMouseInputController(IVxHWMouseInputControllerPtr o) noexcept override
    {
        View::VxHWMouseInputController(Put("VxHWMouseInputController", o));
    }
    void VxHWKeyInputController(IVxHWKeyInputControllerPtr o) noexcept override
    {
        View::VxHWKeyInputController(Put("VxHWKeyInputController", o));
    }
    void Refresh() noexcept override { Line("Refresh"); }
};

} // namespace zqbchwcx::testing
