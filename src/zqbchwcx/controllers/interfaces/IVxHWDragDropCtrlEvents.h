#pragma once

#include "zqbchwcx/controllers/interfaces/Enumerations.h"

#include <memory>

namespace zqbchwcx {

/// A subscriber of the drag-and-drop controller.
class IVxHWDragDropCtrlEvents {
public:
    virtual ~IVxHWDragDropCtrlEvents() = default;

    /// A drag has begun or ended.
    virtual void StateChange(VxEnumDragDropStates ePreviousValue) noexcept = 0;
};
using IVxHWDragDropCtrlEventsPtr = std::shared_ptr<IVxHWDragDropCtrlEvents>;

} // namespace zqbchwcx
