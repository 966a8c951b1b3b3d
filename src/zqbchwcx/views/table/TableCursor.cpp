#include "zqbchwcx/views/table/TableCursor.h"

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/platform/Input.h"

namespace zqbchwcx {
namespace {

/// The next code in steps of a place that stands for a place that is shown: the place itself, or the gap before it.
std::optional<std::int32_t> P_GetAvailablePosIndex(const ShownPlaces& shown, std::int32_t lCode, std::int32_t lStep)
{
    for (std::int32_t lNext = lCode + lStep;; lNext += lStep) {
        const std::int32_t lPlace = (lNext + 1) / 2;
        if (lPlace < 1 || lPlace > shown.PlaceCount()) return {};
        if (shown.IndexOf(lPlace) != 0) return lNext;
    }
}

} // namespace

std::optional<std::int32_t> G_CentralTableCursorTarget(const VxHWStation& oStation, std::int32_t lFocus,
                                                       std::int16_t nKeyCode, std::int16_t nShift)
{
    if (lFocus < 0) return {};
    const auto oRacks = oStation.Racks();
    const std::int32_t lRack = lFocus / vxRackFactor;
    const std::int32_t lCode = lFocus % vxRackFactor;
    const std::int32_t lLastCode = 2 * oRacks->Item(lRack)->Places()->Count();
    const bool bToTheEnd = (nShift & (vxShiftMask | vxCtrlMask)) != 0;
    if (!bToTheEnd && nShift != 0) return {};

    const auto target = [](bool bMoves, std::int32_t lTargetRack, std::int32_t lTargetCode) {
        return bMoves ? std::optional(lTargetRack * vxRackFactor + lTargetCode) : std::nullopt;
    };
    switch (nKeyCode) {
    case vxKeyUp:
        return target(lCode > 2, lRack, lCode + lCode % 2 - 2);
    case vxKeyDown:
        return target(lCode < lLastCode, lRack, lCode + 2 - lCode % 2);
    case vxKeyLeft:
        return bToTheEnd ? target(lCode > 2, lRack, 2) : target(lRack > 0, lRack - 1, lCode);
    case vxKeyRight: {
        if (bToTheEnd) return target(lCode < lLastCode, lRack, lLastCode);
        const bool bNextPresent = lRack + 1 < oRacks->Count() && oRacks->Item(lRack + 1)->State() == vxRackPresent;
        return target(bNextPresent, lRack + 1, lCode);
    }
    default:
        return {};
    }
}

std::optional<std::int32_t> G_ShownTableCursorTarget(const ShownPlaces& shown, std::int32_t lFocus,
                                                     std::int16_t nKeyCode, std::int16_t nShift)
{
    if (lFocus < 0 || lFocus >= vxRackFactor) return {};
    const bool bToTheEnd = (nShift & (vxShiftMask | vxCtrlMask)) != 0;
    if (!bToTheEnd && nShift != 0) return {};
    const std::int32_t lFirst = G_PlacePosition(0, shown.NumberAt(1));
    const std::int32_t lLast = G_PlacePosition(0, shown.LastNumber());
    switch (nKeyCode) {
    case vxKeyUp:
        return P_GetAvailablePosIndex(shown, lFocus, -2);
    case vxKeyDown:
        return P_GetAvailablePosIndex(shown, lFocus, 2);
    case vxKeyLeft:
        return bToTheEnd && lFocus > lFirst && shown.Count() > 0 ? std::optional(lFirst) : std::nullopt;
    case vxKeyRight:
        return bToTheEnd && lFocus < lLast ? std::optional(lLast) : std::nullopt;
    default:
        return {};
    }
}

} // namespace zqbchwcx
