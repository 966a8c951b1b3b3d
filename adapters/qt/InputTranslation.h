#pragma once

#include "zqbchwcx/platform/Input.h"

#include <QPointF>
#include <Qt>

#include <cstdint>

namespace zqbchwcx::qt {

/// The logical pixel that the pointer is on. Between two pixels of a fine screen it is still on the first.
QPointF ToPixel(QPointF position);
/// The mask of the buttons of `nButton`; buttons that it does not know are left out.
std::int16_t ToButtons(Qt::MouseButtons buttons);
/// The mask of `nShift`.
std::int16_t ToShift(Qt::KeyboardModifiers modifiers);
/// The key code of `nKeyCode`; 0 for a key that has none.
std::int16_t ToKeyCode(int key);
/// The mask of `lEffect`; a link is no effect.
std::int32_t ToEffects(Qt::DropActions actions);
Qt::DropActions ToActions(std::int32_t lEffects);
/// The action of one effect; of copy and move together, copy.
Qt::DropAction ToAction(std::int32_t lEffect);

} // namespace zqbchwcx::qt
