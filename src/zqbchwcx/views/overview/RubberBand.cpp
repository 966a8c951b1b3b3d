#include "zqbchwcx/views/overview/RubberBand.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <algorithm>

namespace zqbchwcx {
namespace {

Rect RectBetween(Point a, Point b)
{
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

} // namespace

void RubberBand::Start(Point at)
{
    mCanvas.Overlay(std::nullopt);
    moStart = at;
}

void RubberBand::MoveTo(Point at) noexcept
{
    P_RubberBand(Mode::Move, at);
}

void RubberBand::Finish(Point at) noexcept
{
    P_RubberBand(Mode::Finish, at);
}

void RubberBand::P_RubberBand(Mode eMode, Point at) noexcept
{
    G_Trap(mContext.className, "P_RubberBand", [&] {
        if (!moStart) return;
        const Point start = *moStart;
        if (eMode == Mode::Finish) {
            // Ended first: whatever fails from here on, the next move of the mouse draws no band.
            moStart.reset();
            mCanvas.Overlay(std::nullopt);
        }
        const Size size = mCanvas.Box().ScaleSize();
        const Point end{std::clamp(at.x, 0, size.width), std::clamp(at.y, 0, size.height)};
        if (eMode == Mode::Move) mCanvas.Overlay(RectBetween(start, end));
        else P_SelectRubberContent(start, end);
    });
}

void RubberBand::P_SelectRubberContent(Point start, Point end) noexcept
{
    G_Trap(mContext.className, "P_SelectRubberContent", [&] {
        const auto oSelHandler = mContext.SelHandler();
        oSelHandler->SelPlaces()->Clear();
        for (const PositionRange& range : mLayout.RangesBetween(start, end)) {
            const auto oRack = PresentRack(G_PositionInfo(range.lFrom).lRack);
            if (!oRack) continue;
            const std::int32_t lEnd = G_GapPosition(oRack->Number(), oRack->Places()->Count());
            oSelHandler->SelectRange(std::min(range.lFrom, lEnd), std::min(range.lTo, lEnd));
        }
        oSelHandler->SelChangeComplete();
    });
}

VxHWRackPtr RubberBand::PresentRack(std::int32_t lRack) const
{
    const auto oRacks = mContext.Station()->Racks();
    if (lRack >= oRacks->Count()) return nullptr;
    auto oRack = oRacks->Item(lRack);
    return oRack->State() != vxRackNotPresent ? oRack : nullptr;
}

} // namespace zqbchwcx
