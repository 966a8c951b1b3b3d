#include "zqbchwcx/views/shared/ViewContext.h"

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

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
