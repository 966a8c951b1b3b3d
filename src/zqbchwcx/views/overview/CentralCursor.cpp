#include "zqbchwcx/views/overview/CentralCursor.h"

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/platform/Input.h"

namespace zqbchwcx {
namespace {

using Target = std::optional<std::int32_t>;

Target CodeLeftOf(std::int32_t lCode, bool bFine)
{
    if (bFine) return lCode >= 2 ? Target(lCode - 1) : Target();
    return lCode >= 3 ? Target(lCode + lCode % 2 - 2) : Target();
}

Target CodeRightOf(std::int32_t lCode, std::int32_t lPlaceCount, bool bFine)
{
    if (bFine) return lCode < 2 * lPlaceCount + 1 ? Target(lCode + 1) : Target();
    return lCode < 2 * lPlaceCount ? Target(lCode + 2 - lCode % 2) : Target();
}

Target RackIfPresent(const VxHWRacks& oRacks, std::int32_t lRack)
{
    if (lRack < 0 || lRack >= oRacks.Count()) return {};
    return oRacks.Item(lRack)->State() == vxRackPresent ? Target(lRack) : Target();
}

} // namespace

std::optional<std::int32_t> G_CentralCursorTarget(const VxHWStation& oStation, std::int32_t lFocus,
                                                  std::int16_t nKeyCode, std::int16_t nShift, bool bFine)
{
    if (lFocus < 0) return {};
    const auto oRacks = oStation.Racks();
    Target lRack = lFocus / vxRackFactor;
    Target lCode = lFocus % vxRackFactor;
    const std::int32_t lPlaceCount = oRacks->Item(*lRack)->Places()->Count();
    const bool bToTheEnd = (nShift & (vxShiftMask | vxCtrlMask)) != 0;

    switch (nKeyCode) {
    case vxKeyLeft:
        lCode = CodeLeftOf(*lCode, bFine);
        break;
    case vxKeyRight:
        lCode = CodeRightOf(*lCode, lPlaceCount, bFine);
        break;
    case vxKeyUp:
        if (bToTheEnd) lCode = *lCode >= 3 ? Target(2) : Target();
        else lRack = nShift == 0 ? RackIfPresent(*oRacks, *lRack + 1) : Target();
        break;
    case vxKeyDown:
        if (bToTheEnd) lCode = 2 * lPlaceCount;
        else lRack = nShift == 0 ? RackIfPresent(*oRacks, *lRack - 1) : Target();
        break;
    default:
        return {};
    }
    if (!lRack || !lCode) return {};
    return *lRack * vxRackFactor + *lCode;
}

} // namespace zqbchwcx
