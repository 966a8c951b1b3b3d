#pragma once

#include "platform/Toolkit.h"
#include "tests/support/services/FakeClock.h"
#include "tests/support/services/FakeDesktop.h"

#include <utility>

namespace zqbchwcx::testing {

/// The toolkit of tests without views: timers and the desktop. Asking it for a control is an error of the test.
class MinimalToolkit : public Toolkit {
public:
    explicit MinimalToolkit(const CallLogPtr& log) : clock(log), desktop(log) {}

    PictureBoxPtr CreatePictureBox(UserControl&, std::string_view, const Rect&) override { throw NoControls(); }
    ChildControlPtr CreateChildControl(UserControl&, std::string_view, const Rect&) override { throw NoControls(); }
    FramePtr CreateFrame(UserControl&, std::string_view, const Rect&) override { throw NoControls(); }
    ShapePtr CreateShape(UserControl&, std::string_view, const Rect&) override { throw NoControls(); }
    PopupMenuPtr CreatePopupMenu(UserControl&, std::string_view) override { throw NoControls(); }
    SysInfoPtr CreateSysInfo(UserControl&) override { throw NoControls(); }
    TimerPtr CreateTimer() override { return clock.CreateTimer(); }
    Desktop& GetDesktop() override { return desktop; }
    TooltipService& GetTooltipService() override { throw NoControls(); }
    ImageListFactory& GetImageListFactory() override { throw NoControls(); }

    FakeClock clock;
    FakeDesktop desktop;

private:
    static VxError NoControls() { return {vxErrorUnexpected, "The minimal toolkit makes no controls"}; }
};

} // namespace zqbchwcx::testing
