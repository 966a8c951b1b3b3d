#pragma once

#include "zqbchwcx/views/shared/PositionDescription.h"

#include <QStringList>

namespace zqbchwcx::qt {

/// What stands at a position, for people, in the language of the program: "Rack 0", "Place 4", "Digital input",
/// its order number, "I 0..1". Texts of the model are plain lines. No parts for no position.
QStringList PositionTexts(const PositionDescription& what);

/// The same for somebody who is in the rack and only wants to know what comes next: "Place 4", "Digital input",
/// "I 0..1".
QStringList PositionTextsInRack(const PositionDescription& what);

} // namespace zqbchwcx::qt
