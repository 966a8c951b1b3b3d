#pragma once

#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx {

/// The properties that a manager sets on a view of configuration or diagnostics mode, and the connections to the events
/// of the station and the selection handler. A view is one, says what it does about a change, and shares the context
/// with its parts.
class ControlBinding : public IVxHWControl {
public:
    bool Locked() const noexcept override { return mContext.bLocked; }
    void Locked(bool bLocked) noexcept override;
    VxEnumStationType StationType() const noexcept override { return mContext.eStationType; }
    void StationType(VxEnumStationType eStationType) noexcept override;
    VxEnumStyle Style() const noexcept override { return mContext.eStyle; }
    void Style(VxEnumStyle eStyle) noexcept override;
    VxHWStationPtr VxHWStation() const noexcept override { return mContext.oStation; }
    void VxHWStation(VxHWStationPtr oStation) noexcept override;
    VxHWCompareServicePtr VxHWCompareService() const noexcept override { return mContext.oCompareService; }
    void VxHWCompareService(VxHWCompareServicePtr oCompareService) noexcept override;
    VxHWDiagServicePtr VxHWDiagService() const noexcept override { return mContext.oDiagService; }
    void VxHWDiagService(VxHWDiagServicePtr oDiagService) noexcept override;
    VxHWSelectionHandlerPtr VxHWSelectionHandler() const noexcept override { return mContext.oSelHandler; }
    void VxHWSelectionHandler(VxHWSelectionHandlerPtr oSelectionHandler) noexcept override;
    IVxHWMouseInputControllerPtr VxHWMouseInputController() const noexcept override { return mContext.oMouseCtrl; }
    void VxHWMouseInputController(IVxHWMouseInputControllerPtr oController) noexcept override;
    IVxHWKeyInputControllerPtr VxHWKeyInputController() const noexcept override { return mContext.oKeyCtrl; }
    void VxHWKeyInputController(IVxHWKeyInputControllerPtr oController) noexcept override;
    IVxHWDragDropControllerPtr VxHWDragDropController() const noexcept override { return mContext.oDragDropCtrl; }
    void VxHWDragDropController(IVxHWDragDropControllerPtr oController) noexcept override;

protected:
    /// The class name, a literal, is the one that errors are reported under.
    explicit ControlBinding(std::string_view className) : mContext(className) {}

    ViewContext mContext;

private:
    // What the view does after a property was set. An error is reported under the property's name.
    virtual void OnLocked() {}
    virtual void OnStationType() {}
    virtual void OnStyle() {}
    /// The former station is let go of, the new one is not set yet.
    virtual void OnStationLeaves() {}
    /// The station was set, or there is none any more.
    virtual void OnStation() {}

    // Events. The view reports its own errors.
    virtual void moHWStation_RackChange(const VxHWRackPtr& /*oRack*/) noexcept {}
    virtual void moHWStation_RackPlaceChange(const VxHWRackPlacePtr& /*oPlace*/) noexcept {}
    virtual void moHWStation_TotalRefresh() noexcept {}
    virtual void moSelHandler_SelChange() noexcept {}
    virtual void moSelHandler_FocusChange(std::int32_t /*lPreviousFocus*/) noexcept {}

    EventConnection mRackChangeConnection;
    EventConnection mRackPlaceChangeConnection;
    EventConnection mTotalRefreshConnection;
    EventConnection mSelChangeConnection;
    EventConnection mFocusChangeConnection;
};

} // namespace zqbchwcx
