#include "zqbchwcx/views/overview/FocusMarks.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::int32_t TriangleLeg = 5;
constexpr std::int32_t TriangleDistanceAbove = 6;
constexpr std::int32_t TriangleDistanceBelow = 1;

constexpr std::int32_t GapMarkDistance = 6;

} // namespace

FocusMarks::FocusMarks(const ViewContext& context, const PlaceLayout& layout, const Canvas& canvas,
                       PictureGround& ground, RedrawPlace redrawPlace)
    : mContext(context), mLayout(layout), mCanvas(canvas), mGround(ground), mRedrawPlace(std::move(redrawPlace))
{
}

void FocusMarks::Set(const PositionInfo& position) noexcept
{
    if (position.eType == vxPositionPlace) P_SetPlaceFocus(position.lRack, position.lNumber);
    else if (position.eType == vxPositionGap) P_SetGapFocus(position.lRack, position.lNumber);
}

void FocusMarks::Reset(const PositionInfo& position) noexcept
{
    if (position.eType == vxPositionPlace) P_ResetPlaceFocus(position);
    else if (position.eType == vxPositionGap) P_ResetGapFocus(position);
}

void FocusMarks::P_SetPlaceFocus(std::int32_t lRack, std::int32_t lPlace) noexcept
{
    G_Trap(mContext.className, "P_SetPlaceFocus", [&] {
        if (!mLayout.Shows(lRack, lPlace)) return;
        auto& surface = mCanvas.Box();
        const Rect place = mLayout.PlaceRect(lRack, lPlace);
        const OleColor color = FocusColor();
        const std::int32_t left = place.left - TriangleLeg + 1;
        const std::int32_t above = place.top - TriangleDistanceAbove;
        const std::int32_t below = place.bottom + TriangleDistanceBelow;
        const auto fill = [&](std::int32_t x, std::int32_t y, Corner corner) {
            surface.FillTriangle(MakeRect(x, y, TriangleLeg, TriangleLeg), corner, color);
        };
        fill(left, above, Corner::BottomRight);
        fill(place.right, above, Corner::BottomLeft);
        fill(left, below, Corner::TopRight);
        fill(place.right, below, Corner::TopLeft);
    });
}

void FocusMarks::P_ResetPlaceFocus(const PositionInfo& place) noexcept
{
    G_Trap(mContext.className, "P_ResetPlaceFocus", [&] {
        if (mLayout.Shows(place.lRack, place.lNumber)) mGround.EraseMarks(place);
    });
}

void FocusMarks::P_SetGapFocus(std::int32_t lRack, std::int32_t lGap) noexcept
{
    G_Trap(mContext.className, "P_SetGapFocus", [&] {
        if (!mLayout.ShowsGap(lRack, lGap)) return;
        auto& surface = mCanvas.Box();
        const Rect line = mLayout.GapLine(lRack, lGap);
        const OleColor color = FocusColor();
        const std::int32_t left = line.left - 3;
        const std::int32_t top = line.top - GapMarkDistance;
        const std::int32_t lineTop = top + 4;
        const std::int32_t lineBottom = lineTop + line.height() + 4;
        // Bars are given from corner to corner, both included, so that the I closes on its stem.
        const auto fillBar = [&](std::int32_t x, std::int32_t y, std::int32_t width, std::int32_t height) {
            surface.FillBox(MakeRect(x, y, width + 1, height + 1), color);
        };
        fillBar(left, top, 4, 1);
        fillBar(left + 1, top + 2, 2, 1);
        surface.DrawLine({left + 2, lineTop}, {left + 2, lineBottom - 1}, color);
        fillBar(left + 1, lineBottom, 2, 1);
        fillBar(left, lineBottom + 2, 4, 1);
    });
}

void FocusMarks::P_ResetGapFocus(const PositionInfo& gap) noexcept
{
    G_Trap(mContext.className, "P_ResetGapFocus", [&] {
        if (!mLayout.ShowsGap(gap.lRack, gap.lNumber)) return;
        mGround.EraseMarks(gap);
        const std::int32_t lPlaceCount = mContext.Station()->Racks()->Item(gap.lRack)->Places()->Count();
        const GapNeighbours beside = mLayout.PlacesBeside(gap.lRack, gap.lNumber);
        for (const std::int32_t lPlace : {beside.lLeft, beside.lRight})
            if (lPlace >= 1 && lPlace <= lPlaceCount) mRedrawPlace(gap.lRack, lPlace);
    });
}

OleColor FocusMarks::FocusColor() const
{
    return mCanvas.Box().HasFocus() ? vxColorButtonText : vxColorGrayText;
}

} // namespace zqbchwcx
