#pragma once

#include "zqbchwcx/platform/Geometry.h"

#include <cstdint>
#include <memory>
#include <string>

namespace zqbchwcx {

/// What a tooltip shows: the text, and the area (logical pixels of the window) in which it stays.
struct Tooltip {
    std::string text;
    Rect area;
};

class TooltipCallback {
public:
    virtual ~TooltipCallback() = default;

    /// The tooltip for the point in the window; an empty text for none.
    virtual Tooltip GetTooltip(Point at) noexcept = 0;
};

/// A window's connection to the tooltip service; it ends when the object does.
class TooltipConnection {
public:
    virtual ~TooltipConnection() = default;
};
using TooltipConnectionPtr = std::unique_ptr<TooltipConnection>;

class TooltipService {
public:
    virtual ~TooltipService() = default;

    /// The callback outlives the connection.
    virtual TooltipConnectionPtr Connect(std::intptr_t hWnd, TooltipCallback& callback) = 0;
};

} // namespace zqbchwcx
