#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"
#include "zqbchwcx/reference/model/rules/Refusal.h"

#include <vector>

namespace zqbchwcx::reference {

/// Every rule that the station breaks, ordered by place: types, places, spans that overlap, addresses (missing, not
/// allowed, out of range, overlapping), parameters, sub-modules, missing interface modules and heads. Empty for a
/// station that is in order. Costs n log n of the modules.
std::vector<Refusal> CheckStation(const StationData& data, const Catalogue& catalogue);

} // namespace zqbchwcx::reference
