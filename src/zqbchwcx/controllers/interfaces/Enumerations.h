#pragma once

#include <cstdint>

namespace zqbchwcx {

enum VxEnumDragDropStates : std::int32_t { vxDragDropStateInactive = 0, vxDragDropStateActive = 1 };

enum VxEnumCursorKeyDirection : std::int32_t { vxCursorKeyDirectionHorizontal = 0, vxCursorKeyDirectionVertical = 1 };

} // namespace zqbchwcx
