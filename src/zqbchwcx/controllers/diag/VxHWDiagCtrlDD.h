#pragma once

#include "zqbchwcx/controllers/InertDragDropController.h"

namespace zqbchwcx {

/// Drag and drop in diagnostics mode: none.
class VxHWDiagCtrlDD : public InertDragDropController {
public:
    VxHWDiagCtrlDD() noexcept : InertDragDropController("VxHWDiagCtrlDD") {}
};

} // namespace zqbchwcx
