#pragma once

#include "zqbchwcx/foundation/model/VxHWStation.h"

#include <QString>

#include <cstdint>

namespace quillon_ed {

/// What stands at a position, for people: "Rack 0 · Place 4 · Digital input · order number · I 0..1". Empty without a
/// position. Throws what the station throws.
QString PositionText(const zqbchwcx::VxHWStation& station, std::int32_t lPosition);

/// "I 0..1 · O 4..5"; empty for a module without addresses.
QString AddressText(const zqbchwcx::VxHWModule& module);

} // namespace quillon_ed
