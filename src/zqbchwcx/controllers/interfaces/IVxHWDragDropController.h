#pragma once

#include "zqbchwcx/controllers/interfaces/Enumerations.h"
#include "zqbchwcx/foundation/Array2D.h"
#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/platform/DataObject.h"

#include <cstdint>
#include <memory>

namespace zqbchwcx {

/// Receives the drag-and-drop events of the views, each with the place position under the mouse.
class IVxHWDragDropController {
public:
    virtual ~IVxHWDragDropController() = default;

    virtual VxEnumDragDropStates State() const noexcept = 0;
    virtual std::int32_t DropPosition() const noexcept = 0;
    /// The modules that the current drag carries.
    virtual VxHWModulesPtr DragModules() const noexcept = 0;
    /// Per rack and place: -1 where the dragged modules may be dropped. Empty outside a drag.
    virtual Array2D<std::int32_t> PossibleDropPlaces() const noexcept = 0;
    virtual void OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept = 0;
    virtual void OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept = 0;
    virtual void OLEDragOver(std::int32_t lPosition, const DataObjectPtr& oData, std::int32_t& lEffect,
                             std::int16_t nButton, std::int16_t nShift, std::int16_t nState) noexcept = 0;
    virtual void OLEDragDrop(std::int32_t lPosition, const DataObjectPtr& oData, std::int32_t& lEffect,
                             std::int16_t nButton, std::int16_t nShift) noexcept = 0;
    virtual void OLECompleteDrag(std::int32_t& lEffect) noexcept = 0;
    /// Whether the place can take the dragged modules.
    virtual bool IsDropPlace(const VxHWRackPlacePtr& oPlace) const noexcept = 0;
    /// Whether a drag may start at the position.
    virtual bool IsValidDragPosition(std::int32_t lPosition) const noexcept = 0;
};
using IVxHWDragDropControllerPtr = std::shared_ptr<IVxHWDragDropController>;

} // namespace zqbchwcx
