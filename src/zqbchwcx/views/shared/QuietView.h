#pragma once

#include "zqbchwcx/views/shared/ControlBinding.h"

namespace zqbchwcx {

/// Stands for a view that a host does not have: it keeps what a manager hands out and shows nothing.
class QuietView : public ControlBinding {
public:
    QuietView() : ControlBinding("QuietView") {}

    void Refresh() noexcept override {}
};

} // namespace zqbchwcx
