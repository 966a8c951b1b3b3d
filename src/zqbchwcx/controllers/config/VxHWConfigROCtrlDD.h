#pragma once

#include "zqbchwcx/controllers/InertDragDropController.h"

namespace zqbchwcx {

/// Drag and drop in read-only configuration mode: none.
class VxHWConfigROCtrlDD : public InertDragDropController {
public:
    VxHWConfigROCtrlDD() noexcept : InertDragDropController("VxHWConfigROCtrlDD") {}
};

} // namespace zqbchwcx
