#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <string>

namespace zqbchwcx::reference {

/// Everything that a station holds, a line for each thing, with values as people read them; nothing is aligned, so that
/// a change of one thing changes one line. Ends in a line end.
std::string WriteStationDetails(const StationData& station, const Catalogue& catalogue, Language language);

} // namespace zqbchwcx::reference
