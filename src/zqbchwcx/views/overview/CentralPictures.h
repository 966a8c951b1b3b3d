#pragma once

#include "zqbchwcx/views/overview/PictureStrip.h"

namespace zqbchwcx {

/// The pictures of a central station.
namespace CentralPictures {

PictureStrip Places();
PictureStrip Rail();

inline constexpr std::string_view RailKey = "IDB_CRX_RACK";
inline constexpr std::string_view PlaceActive = "IDB_CRX_PLACE_ACTIVE";
inline constexpr std::string_view PlaceInactive = "IDB_CRX_PLACE_INACTIVE";
inline constexpr std::string_view PlaceDrop = "IDB_CRX_PLACE_DROP";
inline constexpr std::string_view PlaceNoDrop = "IDB_CRX_PLACE_NODROP";
inline constexpr std::string_view PlaceInactiveNoDrop = "IDB_CRX_PLACE_INACTIVE_NODROP";
inline constexpr std::string_view ModuleDefault = "IDB_CRX_MODULE_DEFAULT";
inline constexpr std::string_view FrameLeft = "IDB_CRX_FRAME_LEFT";
inline constexpr std::string_view FrameMid = "IDB_CRX_FRAME_MID";
inline constexpr std::string_view FrameRight = "IDB_CRX_FRAME_RIGHT";
inline constexpr std::string_view FrameTotal = "IDB_CRX_FRAME_TOTAL";

} // namespace CentralPictures
} // namespace zqbchwcx
