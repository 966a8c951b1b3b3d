#include "zqbchwcx/views/overview/PlaceStyle.h"
#include "zqbchwcx/views/overview/RowsLayout.h"

#include <array>

namespace zqbchwcx {
namespace {

constexpr std::array<std::string_view, 9> RailKeys{
    "IDB_RIOA_PLACEFRAME_ACTIVE", "IDB_RIOA_PLACEFRAME_DROP", "IDB_RIOA_PLACE_ACTIVE",
    "IDB_RIOA_PLACE_DROP",        "IDB_RIOA_PLACE_NODROP",    "IDB_RIOA_MODULE_IMCPU",
    "IDB_RIOA_MODULE_SMTYPE1",    "IDB_RIOA_MODULE_SMTYPE2",  "IDB_RIOA_MODULE_SMTYPE3",
};

constexpr std::array<std::string_view, 10> SelfContainedKeys{
    "IDB_RIOB_PLACE_ACTIVE", "IDB_RIOB_PLACE_DROP",   "IDB_RIOB_PLACE_NODROP", "IDB_RIOB_MODULE_ALPHA",
    "IDB_RIOB_MODULE_BETA",  "IDB_RIOB_MODULE_GAMMA", "IDB_RIOB_MODULE_DELTA", "IDB_RIOB_MODULE_EPSILON",
    "IDB_RIOB_MODULE_ZETA",  "IDB_RIOB_MODULE_ETA",
};

constexpr PictureStrip RailPictures{"IDB_RIOA_ALL", RowsLayout::Place, RailKeys};
constexpr PictureStrip SelfContainedPictures{"IDB_RIOB_ALL", RowsLayout::Place, SelfContainedKeys, true};

/// What both variants have in common.
constexpr PlaceStyle Common()
{
    PlaceStyle style;
    style.place = RowsLayout::Place;
    style.module = DrawStyle::Transparent;
    style.number = {4, 72};
    style.cpuState = {5, 3};
    style.failure = {5, 57};
    style.compare = {3, 56};
    style.arrowStart = {10, 0};
    style.dragged = {9, 9};
    return style;
}

constexpr PlaceStyle Rail()
{
    PlaceStyle style = Common();
    style.active = "IDB_RIOA_PLACE_ACTIVE";
    style.drop = "IDB_RIOA_PLACE_DROP";
    style.noDrop = "IDB_RIOA_PLACE_NODROP";
    style.moduleDefault = "IDB_RIOA_MODULE_SMTYPE1";
    style.emptyPlace = DrawStyle::Transparent;
    style.placeFrame = "IDB_RIOA_PLACEFRAME_ACTIVE";
    style.placeFrameDrop = "IDB_RIOA_PLACEFRAME_DROP";
    style.rowPieces = {"IDB_RIOA_RACK_START", "IDB_RIOA_RACK_MIDLEFT", "IDB_RIOA_PLACESTART_ACTIVE",
                       "IDB_RIOA_RACK_MIDRIGHT", "IDB_RIOA_RACK_END"};
    return style;
}

constexpr PlaceStyle SelfContained()
{
    PlaceStyle style = Common();
    style.active = "IDB_RIOB_PLACE_ACTIVE";
    style.drop = "IDB_RIOB_PLACE_DROP";
    style.noDrop = "IDB_RIOB_PLACE_NODROP";
    style.moduleDefault = "IDB_RIOB_MODULE_GAMMA";
    style.emptyPlace = DrawStyle::Opaque;
    style.bEraseBehindModule = true;
    style.rowPieces.placeStart = "IDB_RIOB_PLACESTART_ACTIVE";
    return style;
}

constexpr PlaceStyle RailStyle = Rail();
constexpr PlaceStyle SelfContainedStyle = SelfContained();

} // namespace

const PlaceStyle& G_DistributedPlaceStyle(VxEnumStationType eStationType)
{
    return eStationType == vxStationTypeDistributed2 ? SelfContainedStyle : RailStyle;
}

const PictureStrip* G_DistributedPictures(std::int32_t lStationKind)
{
    if (lStationKind == vxStationKindDistributed1) return &RailPictures;
    return lStationKind == vxStationKindDistributed2 ? &SelfContainedPictures : nullptr;
}

} // namespace zqbchwcx
