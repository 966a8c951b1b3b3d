#include "zqbchwcx/controllers/SelectionSteps.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"

namespace zqbchwcx {

VxHWRackPlacesPtr G_SelPlaces(const VxHWSelectionHandlerPtr& oHandler)
{
    return G_Require(G_Require(oHandler, "The selection handler")->SelPlaces(), "The selection");
}

void G_ClearSelection(const VxHWSelectionHandlerPtr& oHandler)
{
    G_SelPlaces(oHandler)->Clear();
    oHandler->SelChangeComplete();
}

void G_SelectPlace(const VxHWSelectionHandlerPtr& oHandler, const VxHWRackPlacePtr& oPlace)
{
    const auto oSelPlaces = G_SelPlaces(oHandler);
    oSelPlaces->Clear();
    oSelPlaces->Add(oPlace);
    oHandler->SelChangeComplete();
}

void G_SelectPlaces(const VxHWSelectionHandlerPtr& oHandler, const VxHWRackPlacesPtr& oPlaces)
{
    const auto oSelPlaces = G_SelPlaces(oHandler);
    oSelPlaces->Clear();
    for (const auto& oPlace : oPlaces) oSelPlaces->Add(oPlace);
    oHandler->SelChangeComplete();
}

void G_SelectFromAnchor(const VxHWSelectionHandlerPtr& oHandler, std::int32_t lPosition)
{
    G_SelPlaces(oHandler)->Clear();
    oHandler->SelectRange(oHandler->ShiftSelPosition(), lPosition);
    oHandler->SelChangeComplete();
}

void G_ToggleInSelection(const VxHWSelectionHandlerPtr& oHandler, const VxHWRackPlacePtr& oPlace)
{
    const auto oSelPlaces = G_SelPlaces(oHandler);
    if (oSelPlaces->Contains(oPlace)) oSelPlaces->Remove(oPlace->Key());
    else oSelPlaces->Add(oPlace);
}

void G_FocusAndAnchor(const VxHWSelectionHandlerPtr& oHandler, std::int32_t lPosition)
{
    G_Require(oHandler, "The selection handler")->FocusPosition(lPosition);
    oHandler->ShiftSelPosition(lPosition);
}

} // namespace zqbchwcx
