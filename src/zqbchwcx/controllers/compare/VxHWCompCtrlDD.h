#pragma once

#include "zqbchwcx/controllers/InertDragDropController.h"

namespace zqbchwcx {

/// Drag and drop in compare mode: none.
class VxHWCompCtrlDD : public InertDragDropController {
public:
    VxHWCompCtrlDD() noexcept : InertDragDropController("VxHWCompCtrlDD") {}
};

} // namespace zqbchwcx
