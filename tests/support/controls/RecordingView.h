#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/views/shared/QuietView.h"

namespace zqbchwcx::testing {

/// A view that keeps what a manager gives it. It leaves a line when its station is set, as in "table.VxHWStation
/// nothing", and when a drag goes on.
class RecordingView : public zqbchwcx::QuietView, public IVxHWDragDropCtrlEvents, public Logged {
public:
    RecordingView(CallLogPtr log, std::string name) : Logged(std::move(log)), msName(std::move(name)) {}

    using QuietView::VxHWStation;
    void VxHWStation(VxHWStationPtr o) noexcept override
    {
        moLog->lines.push_back(msName + (o ? ".VxHWStation set" : ".VxHWStation nothing"));
        QuietView::VxHWStation(std::move(o));
    }
    void StateChange(VxEnumDragDropStates ePreviousValue) noexcept override
    {
        moLog->lines.push_back(msName + ".StateChange from " + std::to_string(ePreviousValue));
    }

private:
    std::string msName;
};

} // namespace zqbchwcx::testing
