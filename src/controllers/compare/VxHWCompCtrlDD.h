#pragma once

#include "controllers/InertDragDropController.h"

namespace zqbchwcx {

/// Drag and drop in compare mode: none.
class VxHWCompCtrlDD : public InertDragDropController {
public:
    VxHWCompCtrlDD() noexcept : InertDragDropController("VxHWCompCtrlDD") {}
};

} // namespace zqbchwcx
