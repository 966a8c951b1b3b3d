#pragma once

#include "tests/support/services/FakeClock.h"
#include "tests/support/services/FakeDesktop.h"
#include "tests/support/toolkit/RecordingButton.h"
#include "tests/support/toolkit/RecordingControl.h"
#include "tests/support/toolkit/RecordingGrid.h"
#include "tests/support/toolkit/RecordingImageList.h"
#include "tests/support/toolkit/RecordingInfoControls.h"
#include "tests/support/toolkit/RecordingPictureBox.h"
#include "tests/support/toolkit/RecordingPopupForm.h"
#include "tests/support/toolkit/RecordingPopupMenu.h"
#include "tests/support/toolkit/RecordingScrollBar.h"
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
    ScrollBarPtr CreateScrollBar(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingScrollBar>(scrollBars[std::string(name)], rect);
    }
    ButtonPtr CreateButton(UserControl&, std::string_view name, const Rect& rect, ButtonArrow eArrow) override
    {
        return Made<RecordingButton>(buttons[std::string(name)], rect, eArrow);
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
    PanelPtr CreatePanel(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingPanel>(panels[std::string(name)], rect);
    }
    LabelPtr CreateLabel(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingLabel>(labels[std::string(name)].emplace_back(), rect);
    }
    InfoBoxPtr CreateInfoBox(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingInfoBox>(infoBoxes[std::string(name)], rect);
    }
    CommandButtonPtr CreateCommandButton(UserControl&, std::string_view name, const Rect& rect) override
    {
        return Made<RecordingCommandButton>(commandButtons[std::string(name)], rect);
    }
    WindowSpyPtr CreateWindowSpy(std::intptr_t hWnd, WindowSpyHandler handler) override
    {
        return watch.CreateSpy(hWnd, std::move(handler));
    }
    MouseHookPtr CreateMouseHook(MouseHookHandler handler) override { return watch.CreateHook(std::move(handler)); }
    SysInfoPtr CreateSysInfo(UserControl&) override
    {
        Call("Toolkit.CreateSysInfo");
        return std::make_unique<ForwardingSysInfo>(*this);
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
    std::map<std::string, RecordingScrollBar*> scrollBars;
    std::map<std::string, RecordingButton*> buttons;
    std::map<std::string, RecordingPanel*> panels;
    std::map<std::string, std::vector<RecordingLabel*>> labels;
    std::map<std::string, RecordingInfoBox*> infoBoxes;
    std::map<std::string, RecordingCommandButton*> commandButtons;
    ShapesByName shapes;
    // The test calls these.
    std::function<void()> sysColorsChanged;
    std::function<void(std::int32_t)> settingChanged;
    std::int32_t scrollBarSize = 13; ///< of the desktop

private:
    class ForwardingSysInfo : public SysInfo {
    public:
        explicit ForwardingSysInfo(RecordingToolkit& toolkit) : mToolkit(toolkit) {}
        void OnSysColorsChanged(std::function<void()> handler) override
        {
            mToolkit.sysColorsChanged = std::move(handler);
        }
        void OnSettingChanged(std::function<void(std::int32_t)> handler) override
        {
            mToolkit.settingChanged = std::move(handler);
        }
        std::int32_t ScrollBarSize() const override { return mToolkit.scrollBarSize; }

    private:
        RecordingToolkit& mToolkit;
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
