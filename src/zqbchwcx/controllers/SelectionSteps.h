#pragma once

#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <cstdint>

namespace zqbchwcx {

/// The steps on a selection handler that the controllers are made of. Those that return a collection or change
/// `SelPlaces` throw VxError when the handler has none.

VxHWRackPlacesPtr G_SelPlaces(const VxHWSelectionHandlerPtr& oHandler);

/// Empties the selection and tells everybody.
void G_ClearSelection(const VxHWSelectionHandlerPtr& oHandler);
/// Selects this place and no other, and tells everybody.
void G_SelectPlace(const VxHWSelectionHandlerPtr& oHandler, const VxHWRackPlacePtr& oPlace);
/// Selects these places and no others, and tells everybody.
void G_SelectPlaces(const VxHWSelectionHandlerPtr& oHandler, const VxHWRackPlacesPtr& oPlaces);
/// Selects from the anchor to the position and nothing else, and tells everybody.
void G_SelectFromAnchor(const VxHWSelectionHandlerPtr& oHandler, std::int32_t lPosition);
/// Takes the place out of the selection if it is in it, else adds it; tells nobody yet.
void G_ToggleInSelection(const VxHWSelectionHandlerPtr& oHandler, const VxHWRackPlacePtr& oPlace);
/// Moves the focus and makes it the anchor.
void G_FocusAndAnchor(const VxHWSelectionHandlerPtr& oHandler, std::int32_t lPosition);

} // namespace zqbchwcx
