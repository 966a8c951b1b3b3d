#pragma once

#include "tests/support/services/CallLog.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

#include <string>

namespace zqbchwcx::testing {

/// An object of the reference model, seen through one whose every call is a fault point and can answer nothing. What is
/// nothing or watched already stays as it is.
VxHWRacksPtr Watch(const CallLogPtr& log, const VxHWRacksPtr& oRacks);
VxHWRackPtr Watch(const CallLogPtr& log, const VxHWRackPtr& oRack);
VxHWRackPlacesPtr Watch(const CallLogPtr& log, const VxHWRackPlacesPtr& oPlaces);
VxHWRackPlacePtr Watch(const CallLogPtr& log, const VxHWRackPlacePtr& oPlace);
VxHWModulesPtr Watch(const CallLogPtr& log, const VxHWModulesPtr& oModules);
VxHWModulePtr Watch(const CallLogPtr& log, const VxHWModulePtr& oModule);

// What is asked for these is no fault point.

/// As in "0/4"; of a collection, as in "0/1 0/2".
std::string KeyOf(const CallLogPtr& log, const VxHWRackPlacePtr& oPlace);
std::string KeysOf(const CallLogPtr& log, const VxHWRackPlacesPtr& oPlaces);
/// Order numbers, as in "DI AI2 AI2"; "-" is an empty module.
std::string NameOf(const CallLogPtr& log, const VxHWModulePtr& oModule);
std::string NamesOf(const CallLogPtr& log, const VxHWModulesPtr& oModules);

} // namespace zqbchwcx::testing
