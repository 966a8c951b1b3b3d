#pragma once

#include <memory>

namespace zqbchwcx {

class VxHWStation;
class VxHWRacks;
class VxHWRack;
class VxHWRackPlaces;
class VxHWRackPlace;
class VxHWModules;
class VxHWModule;
class VxHWCompareService;
class VxHWDiagService;

using VxHWStationPtr = std::shared_ptr<VxHWStation>;
using VxHWRacksPtr = std::shared_ptr<VxHWRacks>;
using VxHWRackPtr = std::shared_ptr<VxHWRack>;
using VxHWRackPlacesPtr = std::shared_ptr<VxHWRackPlaces>;
using VxHWRackPlacePtr = std::shared_ptr<VxHWRackPlace>;
using VxHWModulesPtr = std::shared_ptr<VxHWModules>;
using VxHWModulePtr = std::shared_ptr<VxHWModule>;
using VxHWCompareServicePtr = std::shared_ptr<VxHWCompareService>;
using VxHWDiagServicePtr = std::shared_ptr<VxHWDiagService>;

} // namespace zqbchwcx
