#include "zqbchwcx/views/overview/OverviewItems.h"

#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

#include <algorithm>

namespace zqbchwcx {
namespace {

constexpr std::int32_t GapReach = 3; // to either side of its line

Rect United(const Rect& one, const Rect& other)
{
    return {std::min(one.left, other.left), std::min(one.top, other.top), std::max(one.right, other.right),
            std::max(one.bottom, other.bottom)};
}

} // namespace

std::vector<std::int32_t> OverviewItems::Racks() const noexcept
{
    std::vector<std::int32_t> positions;
    G_Trap(mContext.className, "P_GetShownRacks", [&] {
        if (!mContext.oStation) return;
        for (const auto& oRack : mContext.Station()->Racks())
            if (!ShownPlacesOf(oRack->Number()).empty()) positions.push_back(G_RackPosition(oRack->Number()));
    });
    return positions;
}

std::vector<std::int32_t> OverviewItems::InRack(std::int32_t lRack) const noexcept
{
    std::vector<std::int32_t> positions;
    G_Trap(mContext.className, "P_GetShownPlaces", [&] {
        if (!Shows(G_PositionInfo(G_RackPosition(lRack)))) return;
        for (const std::int32_t lPlace : ShownPlacesOf(lRack)) {
            // Between places that hidden ones part are two gaps.
            const std::int32_t lGapBefore = G_GapPosition(lRack, lPlace - 1);
            if (positions.empty() || positions.back() != lGapBefore) positions.push_back(lGapBefore);
            positions.push_back(G_PlacePosition(lRack, lPlace));
            positions.push_back(G_GapPosition(lRack, lPlace));
        }
    });
    return positions;
}

OverviewItem OverviewItems::At(std::int32_t lPosition) const noexcept
{
    OverviewItem item;
    G_Trap(mContext.className, "P_DescribePosition", [&] {
        const PositionInfo position = G_PositionInfo(lPosition);
        if (!Shows(position)) return;
        const auto oStation = mContext.Station();
        OverviewItem found;
        found.what = G_DescribePosition(*oStation, lPosition);
        found.rect = RectOf(found.what);
        found.bSelected = IsSelected(lPosition);
        found.bFocused = FocusPosition() == lPosition;
        item = found;
    });
    return item;
}

bool OverviewItems::IsSelected(std::int32_t lPosition) const noexcept
{
    const PositionInfo position = G_PositionInfo(lPosition);
    return position.eType == vxPositionPlace && mSelection.IsSelected(position.lRack, position.lNumber);
}

std::string OverviewItems::DetailsAt(std::int32_t lPosition) const noexcept
{
    return G_TrapValue(mContext.className, "P_DescribePosition", std::string(), [&] {
        const PositionInfo position = G_PositionInfo(lPosition);
        if (position.eType != vxPositionPlace || !Shows(position)) return std::string();
        return mTooltips.TextOf(mContext.Place(position.lRack, position.lNumber));
    });
}

bool OverviewItems::Shows(const PositionInfo& position) const
{
    if (!mContext.oStation || position.eType == vxPositionNone || !G_Exists(mContext.oStation, position)) return false;
    if (position.eType == vxPositionGap) return mLayout.ShowsGap(position.lRack, position.lNumber);
    if (position.eType == vxPositionRack) return !ShownPlacesOf(position.lRack).empty();
    return mLayout.Shows(position.lRack, position.lNumber);
}

std::vector<std::int32_t> OverviewItems::ShownPlacesOf(std::int32_t lRack) const
{
    std::vector<std::int32_t> places;
    const std::int32_t lCount = G_RackByNumber(mContext.Station(), lRack)->Places()->Count();
    for (std::int32_t lPlace = 1; lPlace <= lCount; ++lPlace)
        if (mLayout.Shows(lRack, lPlace)) places.push_back(lPlace);
    return places;
}

Rect OverviewItems::RectOf(const PositionDescription& what) const
{
    const std::int32_t lRack = what.position.lRack;
    Rect rect;
    switch (what.position.eType) {
    case vxPositionPlace:
        rect = mLayout.PlaceRect(lRack, what.position.lNumber);
        break;
    case vxPositionGap: {
        const Rect line = mLayout.GapLine(lRack, what.position.lNumber);
        rect = {line.left - GapReach, line.top, line.left + GapReach, line.bottom};
        break;
    }
    case vxPositionRack: {
        const Point number = mLayout.PointOf(what.position);
        rect = {number.x, number.y, number.x + 1, number.y + 1};
        for (const std::int32_t lPlace : ShownPlacesOf(lRack)) rect = United(rect, mLayout.PlaceRect(lRack, lPlace));
        break;
    }
    case vxPositionNone:
        break;
    }
    const Point origin = mCanvas.InControl({0, 0});
    return MakeRect(origin.x + rect.left, origin.y + rect.top, rect.width(), rect.height());
}

} // namespace zqbchwcx
