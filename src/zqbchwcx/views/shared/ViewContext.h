#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWDragDropController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWKeyInputController.h"
#include "zqbchwcx/controllers/interfaces/IVxHWMouseInputController.h"
#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"
#include "zqbchwcx/platform/Color.h"

#include <string_view>

namespace zqbchwcx {

class VxHWSelectionHandler;
using VxHWSelectionHandlerPtr = std::shared_ptr<VxHWSelectionHandler>;

/// What a manager has set on a view (`ControlBinding`), read by the view's parts. Any object may be nothing.
struct ViewContext {
    explicit ViewContext(std::string_view sClassName) : className(sClassName) {}
    ViewContext(const ViewContext&) = delete;
    ViewContext& operator=(const ViewContext&) = delete;

    /// The view's class: its parts report their errors under this name.
    const std::string_view className;
    VxEnumStationType eStationType = vxStationTypeCentral;
    VxEnumStyle eStyle = vxStyleHWCompare;
    bool bLocked = false;
    OleColor backColor = vxColorWindowBackground;
    VxHWStationPtr oStation;
    VxHWCompareServicePtr oCompareService;
    VxHWDiagServicePtr oDiagService;
    VxHWSelectionHandlerPtr oSelHandler;
    IVxHWMouseInputControllerPtr oMouseCtrl;
    IVxHWKeyInputControllerPtr oKeyCtrl;
    IVxHWDragDropControllerPtr oDragDropCtrl;

    // The caller keeps what these give for the call.
    VxHWStationPtr Station() const { return G_Require(oStation, "The station"); }
    VxHWSelectionHandlerPtr SelHandler() const { return G_Require(oSelHandler, "The selection handler"); }
    IVxHWMouseInputControllerPtr MouseCtrl() const { return G_Require(oMouseCtrl, "The mouse controller"); }
    IVxHWKeyInputControllerPtr KeyCtrl() const { return G_Require(oKeyCtrl, "The key controller"); }
    IVxHWDragDropControllerPtr DragDropCtrl() const { return G_Require(oDragDropCtrl, "The drag-and-drop controller"); }

    /// No position without a selection handler.
    std::int32_t FocusPosition() const noexcept;
    bool IsDragActive() const noexcept;
    /// The place with that number. Throws when the station has none.
    VxHWRackPlacePtr Place(std::int32_t lRack, std::int32_t lPlace) const;
};

} // namespace zqbchwcx
