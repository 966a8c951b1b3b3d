#pragma once

#include "zqbchwcx/platform/DataObject.h"
#include "zqbchwcx/platform/Geometry.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace zqbchwcx {

/// Receives what the user does on a tab strip. Tabs count from 0.
class TabStripEvents {
public:
    virtual ~TabStripEvents() = default;

    virtual void TabClick(std::int32_t lTab) noexcept = 0;
    /// The mouse came to rest on the tab, which is enabled, with no button down.
    virtual void TabHover(std::int32_t lTab) noexcept = 0;
    /// A drag came to rest on the tab, which is enabled.
    virtual void TabDragHover(std::int32_t lTab) noexcept = 0;
};

/// A row of tabs over an inner area.
class TabStrip {
public:
    virtual ~TabStrip() = default;

    /// Who receives the events; null for nobody. The receiver outlives the strip or sets null before it ends.
    virtual void Events(TabStripEvents* receiver) = 0;

    virtual std::int32_t Count() const = 0;
    virtual void Caption(std::int32_t lTab, std::string_view caption) = 0;
    virtual void TooltipText(std::int32_t lTab, std::string_view text) = 0;
    virtual bool Enabled(std::int32_t lTab) const = 0;
    virtual void Enabled(std::int32_t lTab, bool bEnabled) = 0;
    /// -1 when there are no tabs. A put raises no event.
    virtual std::int32_t SelectedTab() const = 0;
    virtual void SelectedTab(std::int32_t lTab) = 0;

    /// Moves and resizes tabs and inner area, in logical pixels of their control.
    virtual void Move(const Rect& rect) = 0;
    /// The area below the tabs, in logical pixels of the control.
    virtual Rect InnerRect() const = 0;
};
using TabStripPtr = std::unique_ptr<TabStrip>;

} // namespace zqbchwcx
