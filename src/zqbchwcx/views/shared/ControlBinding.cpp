#include "zqbchwcx/views/shared/ControlBinding.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <utility>

namespace zqbchwcx {

void ControlBinding::Locked(bool bLocked) noexcept
{
    if (bLocked == mContext.bLocked) return;
    mContext.bLocked = bLocked;
    G_Trap(mContext.className, "IVxHWControl_Locked", [&] { OnLocked(); });
}

void ControlBinding::StationType(VxEnumStationType eStationType) noexcept
{
    mContext.eStationType = eStationType;
    G_Trap(mContext.className, "IVxHWControl_StationType", [&] { OnStationType(); });
}

void ControlBinding::Style(VxEnumStyle eStyle) noexcept
{
    mContext.eStyle = eStyle;
    G_Trap(mContext.className, "IVxHWControl_Style", [&] { OnStyle(); });
}

void ControlBinding::VxHWStation(VxHWStationPtr oStation) noexcept
{
    G_Trap(mContext.className, "IVxHWControl_VxHWStation", [&] {
        mRackChangeConnection.Disconnect();
        mRackPlaceChangeConnection.Disconnect();
        mTotalRefreshConnection.Disconnect();
        OnStationLeaves();
        mContext.oStation = std::move(oStation);
        if (mContext.oStation) {
            auto& station = *mContext.oStation;
            mRackChangeConnection =
                station.RackChange.Connect([this](const VxHWRackPtr& oRack) { moHWStation_RackChange(oRack); });
            mRackPlaceChangeConnection = station.RackPlaceChange.Connect(
                [this](const VxHWRackPlacePtr& oPlace) { moHWStation_RackPlaceChange(oPlace); });
            mTotalRefreshConnection = station.TotalRefresh.Connect([this] { moHWStation_TotalRefresh(); });
        }
        OnStation();
    });
}

void ControlBinding::VxHWCompareService(VxHWCompareServicePtr oCompareService) noexcept
{
    mContext.oCompareService = std::move(oCompareService);
}

void ControlBinding::VxHWDiagService(VxHWDiagServicePtr oDiagService) noexcept
{
    mContext.oDiagService = std::move(oDiagService);
}

void ControlBinding::VxHWSelectionHandler(VxHWSelectionHandlerPtr oSelectionHandler) noexcept
{
    G_Trap(mContext.className, "IVxHWControl_VxHWSelectionHandler", [&] {
        mSelChangeConnection.Disconnect();
        mFocusChangeConnection.Disconnect();
        mContext.oSelHandler = std::move(oSelectionHandler);
        if (!mContext.oSelHandler) return;
        mSelChangeConnection = mContext.oSelHandler->SelChange.Connect([this] { moSelHandler_SelChange(); });
        mFocusChangeConnection = mContext.oSelHandler->FocusChange.Connect(
            [this](std::int32_t lPreviousFocus) { moSelHandler_FocusChange(lPreviousFocus); });
    });
}

void ControlBinding::VxHWMouseInputController(IVxHWMouseInputControllerPtr oController) noexcept
{
    mContext.oMouseCtrl = std::move(oController);
}

void ControlBinding::VxHWKeyInputController(IVxHWKeyInputControllerPtr oController) noexcept
{
    mContext.oKeyCtrl = std::move(oController);
}

void ControlBinding::VxHWDragDropController(IVxHWDragDropControllerPtr oController) noexcept
{
    mContext.oDragDropCtrl = std::move(oController);
}

} // namespace zqbchwcx
