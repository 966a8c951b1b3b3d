#include "app/document/SharedView.h"

#include "foundation/mdl_ErrorHandler.h"
#include "foundation/mdl_Main.h"
#include "foundation/model/VxHWRack.h"
#include "foundation/model/VxHWRackPlace.h"
#include "foundation/model/VxHWRackPlaces.h"
#include "foundation/model/VxHWRacks.h"

namespace quillon_ed {

using namespace zqbchwcx;

namespace {

/// Null when the station has no such place.
VxHWRackPlacePtr FindPlace(const VxHWStation& station, std::int32_t lPosition)
{
    const PositionInfo info = G_PositionInfo(lPosition);
    if (info.eType != vxPositionPlace || info.lRack >= station.Racks()->Count()) return nullptr;
    const VxHWRackPlacesPtr places = station.Racks()->Item(info.lRack)->Places();
    return info.lNumber <= places->Count() ? places->Item(info.lNumber) : nullptr;
}

} // namespace

reference::ViewState CaptureView(const VxHWSelectionHandler& handler)
{
    reference::ViewState state;
    for (const VxHWRackPlacePtr& place : *handler.SelPlaces()) {
        state.selection.push_back(G_PlacePosition(place->Rack()->Number(), place->Number()));
    }
    state.focus = handler.FocusPosition();
    state.anchor = handler.ShiftSelPosition();
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
        handler.ShiftSelPosition(state.anchor);
        handler.FocusPosition(state.focus);
        handler.SelChangeComplete();
    });
}

} // namespace quillon_ed
