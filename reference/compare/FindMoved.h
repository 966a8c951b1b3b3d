#pragma once

#include "zqbchwcx/reference/compare/CompareStations.h"

#include <span>
#include <vector>

namespace zqbchwcx::reference {

/// Adds what moved within a rack, given the rack's differences in the order of their places. Takes time in proportion
/// to their number.
void FindMoved(std::span<const PlaceDifference> differences, const CompareOptions& options,
               std::vector<MovedModules>& moved);

} // namespace zqbchwcx::reference
