#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/platform/TabStrip.h"

namespace zqbchwcx::testing {

/// A tab strip whose user the test plays.
class RecordingTabStrip : public TabStrip, public Logged {
public:
    struct Tab {
        std::string caption;
        std::string tooltip;
        bool enabled = true;
    };
    static constexpr std::int32_t TabHeight = 21;

    RecordingTabStrip(CallLogPtr log, const Rect& rect, std::int32_t lTabs)
        : Logged(std::move(log)), bounds(rect), tabs(static_cast<std::size_t>(lTabs)), mlSelected(lTabs > 0 ? 0 : -1)
    {
    }

    void Events(TabStripEvents* receiver) override { mpEvents = receiver; }
    std::int32_t Count() const override { return static_cast<std::int32_t>(tabs.size()); }
    void Caption(std::int32_t lTab, std::string_view s) override { Call("TabStrip.Caption"), At(lTab).caption = s; }
    void TooltipText(std::int32_t lTab, std::string_view s) override { Call("TabStrip.Tooltip"), At(lTab).tooltip = s; }
    bool Enabled(std::int32_t lTab) const override { return tabs.at(static_cast<std::size_t>(lTab)).enabled; }
    void Enabled(std::int32_t lTab, bool b) override { Call("TabStrip.Enabled"), At(lTab).enabled = b; }
    std::int32_t SelectedTab() const override { return mlSelected; }
    void SelectedTab(std::int32_t lTab) override { Call("TabStrip.SelectedTab"), mlSelected = lTab; }
    void Move(const Rect& rect) override { Call("TabStrip.Move"), bounds = rect; }
    Rect InnerRect() const override { return {bounds.left, bounds.top + TabHeight, bounds.right, bounds.bottom}; }

    bool IsConnected() const { return mpEvents != nullptr; }
    /// A disabled tab does nothing.
    void Click(std::int32_t lTab)
    {
        if (!Enabled(lTab)) return;
        mlSelected = lTab;
        mpEvents->TabClick(lTab);
    }
    void Hover(std::int32_t lTab)
    {
        if (Enabled(lTab)) mpEvents->TabHover(lTab);
    }
    void DragHover(std::int32_t lTab)
    {
        if (Enabled(lTab)) mpEvents->TabDragHover(lTab);
    }

    Rect bounds;
    std::vector<Tab> tabs;

private:
    Tab& At(std::int32_t lTab) { return tabs.at(static_cast<std::size_t>(lTab)); }

    TabStripEvents* mpEvents = nullptr;
    std::int32_t mlSelected;
};

} // namespace zqbchwcx::testing
