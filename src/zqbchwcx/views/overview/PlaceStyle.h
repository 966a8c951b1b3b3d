#pragma once

#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/platform/Geometry.h"
#include "zqbchwcx/platform/Surface.h"
#include "zqbchwcx/views/overview/PictureStrip.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

/// The pieces of the rail of a distributed station, and what begins a row of places; empty names for none.
struct RowPieces {
    std::string_view railFirst; ///< left of the first row
    std::string_view railLeft;  ///< left of the others
    std::string_view placeStart;
    std::string_view railRight; ///< right of all rows but the last
    std::string_view railLast;
};

/// How the places of one kind of station look: the keys of their pictures, and where things lie in a place. Lengths and
/// points are logical pixels; points count from the place's top-left corner.
struct PlaceStyle {
    Size place;
    std::string_view active;
    /// Empty where a place that is not active looks like one that is.
    std::string_view inactive;
    std::string_view drop;
    std::string_view noDrop;
    std::string_view inactiveNoDrop;
    std::string_view moduleDefault;
    /// The place whose pictures close the rail; their keys end with "_END". 0 for no such place.
    std::int32_t lEndPlace = 0;

    DrawStyle emptyPlace = DrawStyle::Normal;
    DrawStyle module = DrawStyle::Normal;
    /// The number lies below the place's picture and is drawn with it.
    bool bNumberBelowPicture = false;
    /// Nothing lies behind a module: what the place showed before is erased.
    bool bEraseBehindModule = false;

    // Around a place, behind what it holds; empty for none.
    std::string_view placeFrame = {};
    std::string_view placeFrameDrop = {};

    // The frame around a module that spans several places; empty for none.
    std::string_view frameLeft;
    std::string_view frameMid;
    std::string_view frameRight;
    std::string_view frameTotal;

    RowPieces rowPieces = {};

    Point number;
    Point cpuState;
    Point failure;
    Point compare;
    /// Where the arrow to the table starts.
    Point arrowStart;
    /// Where the mouse points into the first of the dragged modules.
    Point dragged;
};

/// A central station.
extern const PlaceStyle G_CentralPlaceStyle;
extern const PictureStrip G_CentralPictures;

/// A variant of the distributed station; the second one for `vxStationTypeDistributed2`, else the first.
const PlaceStyle& G_DistributedPlaceStyle(VxEnumStationType eStationType);
/// The pictures that the style's keys are found in, by `StationKind`; none for a kind that is not distributed.
const PictureStrip* G_DistributedPictures(std::int32_t lStationKind);

} // namespace zqbchwcx
