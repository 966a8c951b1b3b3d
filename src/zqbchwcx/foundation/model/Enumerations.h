#pragma once

#include <cstdint>

namespace zqbchwcx {

/// Passed through from the host to the views, which interpret it.
enum VxEnumStationType : std::int32_t {
    vxStationTypeCentral = 0,
    vxStationTypeDistributed1 = 1,
    vxStationTypeDistributed2 = 2,
};

/// `Style` of the views.
enum VxEnumStyle : std::int32_t { vxStyleHWCompare = 0, vxStyleHWConfig = 1, vxStyleHWDiag = 2 };

/// Passed through from the host to the compare views.
enum HWCompareType : std::int32_t {};

/// `StationKind` of a station.
enum : std::int32_t { vxStationKindCentral = 0, vxStationKindDistributed1 = 1, vxStationKindDistributed2 = 2 };

/// `DisplayMode` of a station: 1 and 2 are online.
enum : std::int32_t { vxDisplayModeOffline = 0, vxDisplayModeOnline1 = 1, vxDisplayModeOnline2 = 2 };

/// `State` of a rack.
enum : std::int32_t { vxRackNotPresent = 0, vxRackPresent = 1 };

/// `Usability` of a place.
enum : std::int32_t { vxPlaceNotUsable = -1, vxPlaceInactive = 0, vxPlaceActive = 1 };

/// `CpuState` of a place.
enum : std::int32_t { vxCpuStateRun = 10, vxCpuStateStop = 11, vxCpuStateHold = 12 };

/// Categories of `HasDiagState`.
enum : std::int32_t { vxDiagCategory1 = 1, vxDiagCategory2 = 2, vxDiagCategory4 = 4 };

/// `PlaceResult` of the compare service.
enum : std::int32_t {
    vxCompareNone = 0,
    vxCompareEqual = 1,
    vxComparePotentiallyEqual = 2,
    vxCompareNoModule = 3,
    vxCompareOnlyOther = 4,
    vxCompareModuleDiffers = 5,
    vxCompareModuleDiffers2 = 6,
    vxCompareParametersDiffer = 7,
    vxCompareParametersDiffer2 = 8,
};

} // namespace zqbchwcx
