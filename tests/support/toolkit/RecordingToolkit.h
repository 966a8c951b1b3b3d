#pragma once

#include "tests/support/services/FakeClock.h"
#include "tests/support/services/FakeDesktop.h"
#include "tests/support/toolkit/RecordingControl.h"
#include "tests/support/toolkit/RecordingGrid.h"
#include "tests/support/toolkit/RecordingImageList.h"
#include "tests/support/toolkit/RecordingPictureBox.h"
#include "tests/support/toolkit/RecordingPopupForm.h"
#include "tests/support/toolkit/RecordingPopupMenu.h"
#include "tests/support/toolkit/RecordingShape.h"
#include "tests/support/toolkit/RecordingTabStrip.h"
#include "tests/support/toolkit/RecordingTooltips.h"
#include "tests/support/toolkit/RecordingWatch.h"
#include "zqbchwcx/platform/Toolkit.h"

namespace zqbchwcx::testing {

/// A windowing system without windows: what views draw is recorded, what a user does is done by the test. The
/// children that it made are found by name while their view lives.
class RecordingToolkit : public Toolkit, public Logged {
public:
    using Logged::Logged;
    using ShapesByName = std::map<std::string, std::vector<RecordingShape*>>;

    PictureBoxPtr CreatePictureBox(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingPictureBox>(pictureBoxes[std::string(name)], rect);
    }
    ChildControlPtr CreateChildControl(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingControl>(controls[std::string(name)], rect);
    }
    FramePtr CreateFrame(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingShape>(shapes[std::string(name)].emplace_back(), rect);
    }
    ShapePtr CreateShape(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingShape>(shapes[std::string(name)].emplace_back(), rect);
    }
    PopupMenuPtr CreatePopupMenu(UserControl&, std::string_view name) override
    {
        return Made<RecordingPopupMenu>(menus[std::string(name)]);
    }
    GridPtr CreateGrid(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingGrid>(grids[std::string(name)], rect);
    }
    TabStripPtr CreateTabStrip(UserControl&, std::string_view name, const Rect& rect, std::int32_t lTabs) override
    {
        return Made<RecordingTabStrip>(tabStrips[std::string(name)], rect, lTabs);
    }
    PopupFormPtr CreatePopupForm(UserControl&, std::string_view name) override
    {
        return Made<RecordingPopupForm>(popupForms[std::string(name)]);
    }
    WindowSpyPtr CreateWindowSpy(std::intptr_t hWnd, WindowSpyHandler handler) override
    {
        return watch.CreateSpy(hWnd, std::move(handler));
    }
    MouseHookPtr CreateMouseHook(MouseHookHandler handler) override { return watch.CreateHook(std::move(handler)); }
    SysInfoPtr CreateSysInfo(UserControl&) override
    {
        Call("Toolkit.CreateSysInfo");
        return std::make_unique<ForwardingSysInfo>(sysColorsChanged);
    }
    TimerPtr CreateTimer() override { return clock.CreateTimer(); }
    Desktop& GetDesktop() override { return desktop; }
    TooltipService& GetTooltipService() override { return tooltips; }
    ImageListFactory& GetImageListFactory() override { return imageLists; }

    FakeClock clock{moLog};
    FakeDesktop desktop{moLog};
    RecordingImageListFactory imageLists{moLog};
    RecordingTooltips tooltips{moLog};
    RecordingWatch watch{moLog};
    std::map<std::string, RecordingPictureBox*> pictureBoxes;
    std::map<std::string, RecordingControl*> controls;
    std::map<std::string, RecordingGrid*> grids;
    std::map<std::string, RecordingTabStrip*> tabStrips;
    std::map<std::string, RecordingPopupForm*> popupForms;
    std::map<std::string, RecordingPopupMenu*> menus;
    ShapesByName shapes;
    std::function<void()> sysColorsChanged; ///< the test calls it

private:
    class ForwardingSysInfo : public SysInfo {
    public:
        explicit ForwardingSysInfo(std::function<void()>& handler) : mHandler(handler) {}
        void OnSysColorsChanged(std::function<void()> handler) override { mHandler = std::move(handler); }

    private:
        std::function<void()>& mHandler;
    };

    template <class Child, class... Args>
    std::unique_ptr<Child> Made(Child*& found, Args&&... args)
    {
        Call("Toolkit.Create");
        auto child = std::make_unique<Child>(moLog, std::forward<Args>(args)...);
        found = child.get();
        return child;
    }
};

} // namespace zqbchwcx::testing
