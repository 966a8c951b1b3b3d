#pragma once

#include <cstdint>

namespace zqbchwcx {

/// Mouse-button mask of `nButton`.
enum : std::int16_t { vxButtonLeft = 1, vxButtonRight = 2, vxButtonMiddle = 4 };

/// Modifier mask of `nShift`.
enum : std::int16_t { vxShiftMask = 1, vxCtrlMask = 2, vxAltMask = 4 };

/// Drop-effect mask of `lEffect`.
enum : std::int32_t { vxDropEffectNone = 0, vxDropEffectCopy = 1, vxDropEffectMove = 2, vxDropEffectCopyOrMove = 3 };

/// Drag-over state of `nState`.
enum : std::int16_t { vxDragEnter = 0, vxDragLeave = 1, vxDragOver = 2 };

/// Key codes of `nKeyCode`, as key events carry them.
enum : std::int16_t {
    vxKeyTab = 9,
    vxKeyClear = 12,
    vxKeyReturn = 13,
    vxKeyEscape = 27,
    vxKeySpace = 32,
    vxKeyPageUp = 33,
    vxKeyPageDown = 34,
    vxKeyEnd = 35,
    vxKeyHome = 36,
    vxKeyLeft = 37,
    vxKeyUp = 38,
    vxKeyRight = 39,
    vxKeyDown = 40,
    vxKeyDelete = 46,
    vxKeyA = 65,
    vxKeyY = 89,
    vxKeyZ = 90,
    vxKeyApps = 93,
    vxKeyF2 = 113,
    vxKeyF10 = 121
};

} // namespace zqbchwcx
