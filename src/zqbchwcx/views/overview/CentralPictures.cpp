#include "zqbchwcx/views/overview/CentralPictures.h"

#include <array>

namespace zqbchwcx::CentralPictures {
namespace {

constexpr std::array<std::string_view, 28> PlaceKeys{
    PlaceActive,
    "IDB_CRX_PLACE_ACTIVE_END",
    PlaceInactive,
    "IDB_CRX_PLACE_INACTIVE_END",
    PlaceDrop,
    "IDB_CRX_PLACE_DROP_END",
    PlaceNoDrop,
    "IDB_CRX_PLACE_NODROP_END",
    PlaceInactiveNoDrop,
    "IDB_CRX_PLACE_INACTIVE_NODROP_END",
    "IDB_CRX_MODULE_PS",
    "IDB_CRX_MODULE_CPU",
    "IDB_CRX_MODULE_CPUC",
    "IDB_CRX_MODULE_CPUM",
    "IDB_CRX_MODULE_IM",
    "IDB_CRX_MODULE_IO_ANALOG",
    "IDB_CRX_MODULE_IO_DIGITAL",
    ModuleDefault,
    "IDB_CRX_MODULE_DUMMY",
    "IDB_CRX_MODULE_MERID_CPU",
    "IDB_CRX_MODULE_MERID_IM",
    "IDB_CRX_MODULE_MERID_IO_ANALOG",
    "IDB_CRX_MODULE_MERID_IO_DIGITAL",
    "IDB_CRX_MODULE_MERID_DUMMY",
    FrameLeft,
    FrameMid,
    FrameRight,
    FrameTotal,
};

constexpr std::array<std::string_view, 1> RailKeys{RailKey};

} // namespace

PictureStrip Places()
{
    return {"IDB_CRX_ALL", 18, PlaceKeys};
}

PictureStrip Rail()
{
    return {"IDB_CRX_RACK", 218, RailKeys};
}

} // namespace zqbchwcx::CentralPictures
