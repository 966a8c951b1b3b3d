#include "app/document/SharedView.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

bool HasPosition(const VxHWStation& station, std::int32_t lPosition)
{
    const PositionInfo info = G_PositionInfo(lPosition);
    if (info.eType == vxPositionNone) return true;
    return info.lRack < station.Racks()->Count() &&
           info.lNumber <= station.Racks()->Item(info.lRack)->Places()->Count();
}

/// Null when the station has no such place.
VxHWRackPlacePtr FindPlace(const VxHWStation& station, std::int32_t lPosition)
{
    const PositionInfo info = G_PositionInfo(lPosition);
    if (info.eType != vxPositionPlace || !HasPosition(station, lPosition)) return nullptr;
    return station.Racks()->Item(info.lRack)->Places()->Item(info.lNumber);
}

} // namespace

reference::ViewState CaptureView(const VxHWSelectionHandler& handler)
{
    reference::ViewState state;
    state.focus = handler.FocusPosition();
    state.anchor = handler.ShiftSelPosition();
    G_Trap("SharedView", "CaptureView", [&] {
        for (const VxHWRackPlacePtr& place : handler.SelPlaces()) {
            state.selection.push_back(G_PlacePosition(place->Rack()->Number(), place->Number()));
        }
    });
    return state;
}

void ShowView(VxHWSelectionHandler& handler, const VxHWStation& station, const reference::ViewState& state)
{
    G_Trap("SharedView", "ShowView", [&] {
        const VxHWRackPlacesPtr selected = handler.SelPlaces();
        selected->Clear();
        for (const std::int32_t position : state.selection) {
            if (const VxHWRackPlacePtr place = FindPlace(station, position)) selected->Add(place);
        }
        if (HasPosition(station, state.anchor)) handler.ShiftSelPosition(state.anchor);
        if (HasPosition(station, state.focus)) handler.FocusPosition(state.focus);
        handler.SelChangeComplete();
    });
}

} // namespace quillon_ed
