#include "zqbchwcx/views/overview/PlaceStyle.h"

#include "zqbchwcx/views/overview/CentralPlaceLayout.h"

#include <array>

namespace zqbchwcx {
namespace {

constexpr std::array<std::string_view, 28> CentralKeys{
    "IDB_CRX_PLACE_ACTIVE",
    "IDB_CRX_PLACE_ACTIVE_END",
    "IDB_CRX_PLACE_INACTIVE",
    "IDB_CRX_PLACE_INACTIVE_END",
    "IDB_CRX_PLACE_DROP",
    "IDB_CRX_PLACE_DROP_END",
    "IDB_CRX_PLACE_NODROP",
    "IDB_CRX_PLACE_NODROP_END",
    "IDB_CRX_PLACE_INACTIVE_NODROP",
    "IDB_CRX_PLACE_INACTIVE_NODROP_END",
    "IDB_CRX_MODULE_PS",
    "IDB_CRX_MODULE_CPU",
    "IDB_CRX_MODULE_CPUC",
    "IDB_CRX_MODULE_CPUM",
    "IDB_CRX_MODULE_IM",
    "IDB_CRX_MODULE_IO_ANALOG",
    "IDB_CRX_MODULE_IO_DIGITAL",
    "IDB_CRX_MODULE_DEFAULT",
    "IDB_CRX_MODULE_DUMMY",
    "IDB_CRX_MODULE_MERID_CPU",
    "IDB_CRX_MODULE_MERID_IM",
    "IDB_CRX_MODULE_MERID_IO_ANALOG",
    "IDB_CRX_MODULE_MERID_IO_DIGITAL",
    "IDB_CRX_MODULE_MERID_DUMMY",
    "IDB_CRX_FRAME_LEFT",
    "IDB_CRX_FRAME_MID",
    "IDB_CRX_FRAME_RIGHT",
    "IDB_CRX_FRAME_TOTAL",
};

} // namespace

const PictureStrip G_CentralPictures{
    "IDB_CRX_ALL", {CentralPlaceLayout::PlaceWidth, CentralPlaceLayout::PlaceHeight}, CentralKeys};

const PlaceStyle G_CentralPlaceStyle{
    .place = {CentralPlaceLayout::PlaceWidth, CentralPlaceLayout::PlaceHeight},
    .active = "IDB_CRX_PLACE_ACTIVE",
    .inactive = "IDB_CRX_PLACE_INACTIVE",
    .drop = "IDB_CRX_PLACE_DROP",
    .noDrop = "IDB_CRX_PLACE_NODROP",
    .inactiveNoDrop = "IDB_CRX_PLACE_INACTIVE_NODROP",
    .moduleDefault = "IDB_CRX_MODULE_DEFAULT",
    .lEndPlace = CentralPlaceLayout::PlaceCount,
    .bNumberBelowPicture = true,
    .frameLeft = "IDB_CRX_FRAME_LEFT",
    .frameMid = "IDB_CRX_FRAME_MID",
    .frameRight = "IDB_CRX_FRAME_RIGHT",
    .frameTotal = "IDB_CRX_FRAME_TOTAL",
    .number = {3, 33},
    .cpuState = {3, 3},
    .failure = {3, 45},
    .compare = {1, 43},
    .arrowStart = {7, -1},
    .dragged = {9, 9},
};

} // namespace zqbchwcx
