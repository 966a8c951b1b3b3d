#include "views/parts/ViewContext.h"

#include "foundation/PlacePosition.h"
#include "foundation/model/VxHWRack.h"
#include "foundation/model/VxHWRackPlace.h"
#include "foundation/model/VxHWRackPlaces.h"
#include "foundation/model/VxHWRacks.h"
#include "selection/VxHWSelectionHandler.h"

namespace zqbchwcx {

std::int32_t ViewContext::FocusPosition() const noexcept
{
    return oSelHandler ? oSelHandler->FocusPosition() : vxNoPosition;
}

bool ViewContext::IsDragActive() const noexcept
{
    return oDragDropCtrl && oDragDropCtrl->State() == vxDragDropStateActive;
}

VxHWRackPlacePtr ViewContext::Place(std::int32_t lRack, std::int32_t lPlace) const
{
    return Station()->Racks()->Item(lRack)->Places()->Item(lPlace);
}

} // namespace zqbchwcx
