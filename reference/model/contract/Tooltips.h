#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/PlaceRef.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <string>

namespace zqbchwcx::reference {

/// What an empty place is good for: active, inactive or not usable.
LocalizedText EmptyPlaceText(const PlaceData& data, PlaceRef place);

/// Name, order number, description, addresses, sub-modules and comment, each on a line of its own that ends in a
/// carriage return and a line feed, the last one without.
std::string ModuleText(const ModuleData& module, const Catalogue& catalogue, Language language);

} // namespace zqbchwcx::reference
