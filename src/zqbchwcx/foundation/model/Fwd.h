#pragma once

#include "zqbchwcx/foundation/ObjectPtr.h"

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
class ParameterDifference;
class ParameterDifferences;

template <>
inline constexpr const char* G_ObjectName<VxHWStation> = "The station";
template <>
inline constexpr const char* G_ObjectName<VxHWRacks> = "The collection of racks";
template <>
inline constexpr const char* G_ObjectName<VxHWRack> = "The rack";
template <>
inline constexpr const char* G_ObjectName<VxHWRackPlaces> = "The collection of places";
template <>
inline constexpr const char* G_ObjectName<VxHWRackPlace> = "The place";
template <>
inline constexpr const char* G_ObjectName<VxHWModules> = "The collection of modules";
template <>
inline constexpr const char* G_ObjectName<VxHWModule> = "The module";
template <>
inline constexpr const char* G_ObjectName<VxHWCompareService> = "The compare service";
template <>
inline constexpr const char* G_ObjectName<VxHWDiagService> = "The diagnostics service";
template <>
inline constexpr const char* G_ObjectName<ParameterDifference> = "The parameter difference";
template <>
inline constexpr const char* G_ObjectName<ParameterDifferences> = "The collection of parameter differences";

using VxHWStationPtr = ObjectPtr<VxHWStation>;
using VxHWRacksPtr = ObjectPtr<VxHWRacks>;
using VxHWRackPtr = ObjectPtr<VxHWRack>;
using VxHWRackPlacesPtr = ObjectPtr<VxHWRackPlaces>;
using VxHWRackPlacePtr = ObjectPtr<VxHWRackPlace>;
using VxHWModulesPtr = ObjectPtr<VxHWModules>;
using VxHWModulePtr = ObjectPtr<VxHWModule>;
using VxHWCompareServicePtr = ObjectPtr<VxHWCompareService>;
using VxHWDiagServicePtr = ObjectPtr<VxHWDiagService>;
using ParameterDifferencePtr = ObjectPtr<ParameterDifference>;
using ParameterDifferencesPtr = ObjectPtr<ParameterDifferences>;

} // namespace zqbchwcx
