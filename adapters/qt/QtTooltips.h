#pragma once

#include "zqbchwcx/platform/Tooltips.h"

namespace zqbchwcx::qt {

/// Tooltips of the desktop. They are plain text.
class QtTooltips : public TooltipService {
public:
    /// Throws VxError without a window.
    TooltipConnectionPtr Connect(std::intptr_t hWnd, TooltipCallback& callback) override;
};

} // namespace zqbchwcx::qt
