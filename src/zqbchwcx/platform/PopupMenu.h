#pragma once

#include "zqbchwcx/platform/Geometry.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace zqbchwcx {

/// A popup menu; items are numbered from 0 in the order in which they were added, separators included.
class PopupMenu {
public:
    virtual ~PopupMenu() = default;

    /// Appends an item; the caption "-" makes a separator. Returns its number.
    virtual std::int32_t Add(std::string_view name, std::string_view caption) = 0;
    virtual void Caption(std::int32_t lItem, std::string_view caption) = 0;
    virtual bool Enabled(std::int32_t lItem) const = 0;
    virtual void Enabled(std::int32_t lItem, bool bEnabled) = 0;
    virtual void OnClick(std::function<void(std::int32_t lItem)> handler) = 0;
    /// Opens the menu at the point (logical pixels of its control), or at the mouse, as a right-button menu, and
    /// returns when it is closed. The default item, if any, is shown in bold.
    virtual void Show(std::optional<Point> at, std::optional<std::int32_t> lDefaultItem) = 0;
};
using PopupMenuPtr = std::unique_ptr<PopupMenu>;

} // namespace zqbchwcx
