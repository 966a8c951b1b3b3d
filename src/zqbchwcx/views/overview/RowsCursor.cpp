#include "zqbchwcx/views/overview/RowsCursor.h"

#include "zqbchwcx/platform/Input.h"

namespace zqbchwcx {
namespace {

using Cell = RowsLayout::Cell;
using Target = std::optional<std::int32_t>;

Target PlaceOrNothing(std::int32_t lPlace)
{
    return lPlace != 0 ? Target(G_PlacePosition(0, lPlace)) : Target();
}

/// The gap behind a place is the one before the next place that is shown.
std::int32_t GapBehind(const ShownPlaces& shown, std::int32_t lPlace)
{
    return G_GapPosition(0, shown.NumberFrom(lPlace + 1) - 1);
}

/// Gaps and places in the order in which they are shown, counted from 0: odd ones are places.
std::int32_t StepOf(const ShownPlaces& shown, const PositionInfo& position)
{
    const bool bPlace = position.eType == vxPositionPlace;
    if (bPlace && shown.IndexOf(position.lNumber) != 0) return 2 * shown.IndexOf(position.lNumber) - 1;
    const std::int32_t lNext = shown.IndexFrom(bPlace ? position.lNumber : position.lNumber + 1);
    return 2 * ((lNext != 0 ? lNext : shown.Count() + 1) - 1);
}

Target PositionOfStep(const ShownPlaces& shown, std::int32_t lStep)
{
    if (lStep < 0 || lStep > 2 * shown.Count() || shown.Count() == 0) return {};
    if (lStep % 2 != 0) return PlaceOrNothing(shown.NumberAt((lStep + 1) / 2));
    return lStep == 0 ? G_GapPosition(0, shown.NumberAt(1) - 1) : GapBehind(shown, shown.NumberAt(lStep / 2));
}

Target Beside(const ShownPlaces& shown, const PositionInfo& focus, std::int32_t lDirection, bool bFine)
{
    const std::int32_t lStep = StepOf(shown, focus) + lDirection;
    return PositionOfStep(shown, bFine || lStep % 2 != 0 ? lStep : lStep + lDirection);
}

Target InOtherRow(const RowsLayout& layout, Cell cell, bool bGap, std::int32_t lDirection)
{
    const bool bDown = lDirection > 0;
    const Cell target{cell.lRow + lDirection, cell.lColumn};
    if (target.lRow >= layout.RowCount()) {
        const std::int32_t lEighth = layout.PlaceIn({cell.lRow, RowsLayout::PlacesInRow - 1});
        const bool bToTheEnd = bDown && bGap && cell.lColumn == 0 && lEighth != 0;
        return bToTheEnd ? Target(GapBehind(layout.Shown(), lEighth)) : Target();
    }
    const std::int32_t lPlace = layout.PlaceIn(target);
    if (!bGap) return PlaceOrNothing(lPlace);
    if (lPlace != 0) return G_GapPosition(0, lPlace - 1);
    const std::int32_t lBefore = layout.PlaceIn({target.lRow, target.lColumn - 1});
    return lBefore != 0 ? Target(GapBehind(layout.Shown(), lBefore)) : Target();
}

/// Where there is no place in that row and column, the first or last one that is shown.
Target PlaceInOtherRow(const RowsLayout& layout, Cell cell, std::int32_t lDirection)
{
    const std::int32_t lPlace = layout.PlaceIn({cell.lRow + lDirection, cell.lColumn});
    if (lPlace != 0) return PlaceOrNothing(lPlace);
    return PlaceOrNothing(lDirection < 0 ? layout.Shown().NumberAt(1) : layout.Shown().LastNumber());
}

} // namespace

std::optional<std::int32_t> G_RowsCursorTarget(const RowsLayout& layout, std::int32_t lFocus, std::int16_t nKeyCode,
                                               std::int16_t nShift, bool bFine)
{
    const PositionInfo focus = G_PositionInfo(lFocus);
    if (focus.eType == vxPositionNone || focus.lRack != 0) return {};
    const std::int32_t lDirection = nKeyCode == vxKeyLeft || nKeyCode == vxKeyUp ? -1 : 1;
    Target target;
    if (nKeyCode == vxKeyLeft || nKeyCode == vxKeyRight) {
        target = Beside(layout.Shown(), focus, lDirection, bFine);
    } else if (const auto cell = layout.CellOf(focus)) {
        if (nShift == 0) target = InOtherRow(layout, *cell, focus.eType == vxPositionGap, lDirection);
        else if ((nShift & (vxShiftMask | vxCtrlMask)) != 0) target = PlaceInOtherRow(layout, *cell, lDirection);
    }
    return target == lFocus ? Target() : target;
}

} // namespace zqbchwcx
