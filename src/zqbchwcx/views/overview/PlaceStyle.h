#pragma once

#include "zqbchwcx/platform/Geometry.h"
#include "zqbchwcx/views/overview/PictureStrip.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

/// How the places of one kind of station look: the keys of their pictures, and where things lie in a place. Lengths and
/// points are logical pixels; points count from the place's top-left corner.
struct PlaceStyle {
    Size place;
    PictureStrip pictures;

    std::string_view active;
    std::string_view inactive;
    std::string_view drop;
    std::string_view noDrop;
    std::string_view inactiveNoDrop;
    std::string_view moduleDefault;
    /// The place whose pictures close the rail; their keys end with "_END". 0 for no such place.
    std::int32_t lEndPlace = 0;

    // The frame around a module that spans several places.
    std::string_view frameLeft;
    std::string_view frameMid;
    std::string_view frameRight;
    std::string_view frameTotal;

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

} // namespace zqbchwcx
