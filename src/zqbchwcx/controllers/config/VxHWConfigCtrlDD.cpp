#include "zqbchwcx/controllers/config/VxHWConfigCtrlDD.h"

#include "zqbchwcx/controllers/SelectionSteps.h"
#include "zqbchwcx/foundation/Brackets.h"
#include "zqbchwcx/foundation/ConfigTextCodec.h"
#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/foundation/model/VxHWModelFactory.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/platform/Desktop.h"
#include "zqbchwcx/platform/Input.h"

#include <utility>

namespace zqbchwcx {
namespace {

/// How long, in milliseconds, a drag may be outside of every view before its state ends.
constexpr std::int32_t StateHoldInterval = 10;

std::int16_t ConfigTextFormat()
{
    return G_ServiceRoot().toolkit->GetDesktop().RegisterClipboardFormat(G_ConfigTextFormatName);
}

ExchangeDataPtr CreateExchangeData()
{
    return G_Require(G_ServiceRoot().objectFactory->CreateExchangeData(), "The exchange object");
}

bool IsGapOrPlace(const PositionInfo& info)
{
    return info.eType == vxPositionGap || info.eType == vxPositionPlace;
}

} // namespace

VxHWConfigCtrlDD::VxHWConfigCtrlDD() noexcept : StationController("VxHWConfigCtrlDD")
{
    G_Trap(className(), "Class_Initialize", [&] {
        moDragModules = G_ServiceRoot().modelFactory->CreateModules();
        moTimer = G_ServiceRoot().toolkit->CreateTimer();
        moTimer->Interval(StateHoldInterval);
        moTimer->Enabled(false);
        moTimer->OnTimer([this] {
            // Kept alive for the call: a subscriber may make the host drop this controller.
            const auto oSelf = weak_from_this().lock();
            moTimer_Timer();
        });
    });
}

VxHWConfigCtrlDD::~VxHWConfigCtrlDD() = default;

void VxHWConfigCtrlDD::AddSubscriber(const IVxHWDragDropCtrlEventsPtr& oSubscriber) noexcept
{
    G_Trap(className(), "IVxHWController_AddSubscriber", [&] { mcolSubscribers.emplace_back(oSubscriber); });
}

void VxHWConfigCtrlDD::RemoveAllSubscribers() noexcept
{
    mcolSubscribers.clear();
}

VxEnumDragDropStates VxHWConfigCtrlDD::State() const noexcept
{
    return meState;
}

std::int32_t VxHWConfigCtrlDD::DropPosition() const noexcept
{
    return mlDropPosition;
}

VxHWModulesPtr VxHWConfigCtrlDD::DragModules() const noexcept
{
    return moDragModules;
}

Array2D<std::int32_t> VxHWConfigCtrlDD::PossibleDropPlaces() const noexcept
{
    Array2D<std::int32_t> alPlaces;
    G_Trap(className(), "IVxHWDragDropController_PossibleDropPlaces", [&] { alPlaces = malPossibleDropPlaces; });
    return alPlaces;
}

void VxHWConfigCtrlDD::OLEStartDrag(const DataObjectPtr& oData, std::int32_t& lAllowedEffects) noexcept
{
    G_Trap(className(), "IVxHWDragDropController_OLEStartDrag", [&] {
        VxHWModulesPtr oModules;
        // A drag of some of the modules could end with all of them being taken away here.
        if (!SelHandler()->CollectSelectedModules(oModules)) return;
        const auto oOffered = G_Require(oData, "The data object");
        oOffered->SetData(ConfigTextFormat(), G_EncodeConfigText(oModules->ConfigText()));
        oOffered->AnnounceFormat(CreateExchangeData()->FormatId());
        lAllowedEffects = vxDropEffectCopyOrMove;
        mbDragSource = true;
    });
}

void VxHWConfigCtrlDD::OLESetData(const DataObjectPtr& oData, std::int16_t nDataFormat) noexcept
{
    G_Trap(className(), "IVxHWDragDropController_OLESetData", [&] {
        const auto oExchange = CreateExchangeData();
        if (nDataFormat != oExchange->FormatId()) return;
        VxHWModulesPtr oModules;
        if (!SelHandler()->CollectSelectedModules(oModules)) return;
        Station()->WriteModulesToExchange(oModules, oExchange);
        G_Require(oData, "The data object")->SetData(nDataFormat, oExchange->Data());
    });
}

void VxHWConfigCtrlDD::OLEDragOver(std::int32_t lPosition, const DataObjectPtr& oData, std::int32_t& lEffect,
                                   std::int16_t nButton, std::int16_t nShift, std::int16_t nState) noexcept
{
    G_Trap(className(), "IVxHWDragDropController_OLEDragOver", [&] {
        if (nState == vxDragEnter) P_FillDragModules(oData, false);
        if (G_Require(moDragModules, "The drag modules")->Count() == 0) {
            lEffect = vxDropEffectNone;
            return;
        }
        if (nState == vxDragLeave) return LeaveView();
        if (nState == vxDragEnter) EnterView();
        MoveOver(lPosition, nShift);
        P_CheckDropEffect(lEffect, mbLastCanDrop, nButton, nShift);
    });
}

void VxHWConfigCtrlDD::OLEDragDrop(std::int32_t lPosition, const DataObjectPtr& oData, std::int32_t& lEffect,
                                   std::int16_t nButton, std::int16_t nShift) noexcept
{
    constexpr std::string_view Procedure = "IVxHWDragDropController_OLEDragDrop";
    bool bDropped = false;
    const bool bCompleted = G_Trap(className(), Procedure, [&] {
        P_FillDragModules(oData, true);
        const DrawingOff drawingOff(Station(), className(), Procedure);
        // A move of nothing must never reach the station: it would only take the source modules away.
        const bool bCarriesModules = G_Require(moDragModules, "The drag modules")->Count() > 0;
        if (bCarriesModules && IsGapOrPlace(G_PositionInfo(lPosition))) bDropped = DropAt(lPosition, nShift);
        else mlDropPosition = vxNoPosition;
        if (!bDropped) RestoreFocus();
        P_State(vxDragDropStateInactive);
    });
    P_State(vxDragDropStateInactive);
    if (bCompleted) P_CheckDropEffect(lEffect, bDropped, nButton, nShift);
    EndDrag();
}

void VxHWConfigCtrlDD::OLECompleteDrag(std::int32_t& lEffect) noexcept
{
    constexpr std::string_view Procedure = "IVxHWDragDropController_OLECompleteDrag";
    if (!mbDragSource) return;
    G_Trap(className(), Procedure, [&] {
        if (lEffect != vxDropEffectMove) return;
        const DrawingOff drawingOff(Station(), className(), Procedure);
        const WaitCursor waitCursor;
        Station()->DeleteModules(G_SelPlaces(SelHandler()));
    });
    EndDrag();
}

bool VxHWConfigCtrlDD::IsDropPlace(const VxHWRackPlacePtr& oPlace) const noexcept
{
    return G_TrapValue(className(), "IsDropPlace", false, [&] {
        if (meState != vxDragDropStateActive) return false;
        const std::int32_t lRack = G_Require(oPlace, "The place")->Rack()->Number();
        const std::int32_t lPlace = oPlace->Number();
        return malPossibleDropPlaces.Contains(lRack, lPlace) && malPossibleDropPlaces.Get(lRack, lPlace) == -1;
    });
}

bool VxHWConfigCtrlDD::IsValidDragPosition(std::int32_t lPosition) const noexcept
{
    return G_TrapValue(className(), "IVxHWDragDropController_IsValidDragPosition", false, [&] {
        const PositionInfo info = G_PositionInfo(lPosition);
        if (info.eType == vxPositionNone || !G_Exists(Station(), info)) return false;
        const auto oHandler = SelHandler();
        if (IsGapOrPlace(info)) {
            const auto oPlace = G_PlaceByNumber(Station(), info.lRack, G_PlaceNumberAt(info));
            if (!G_SelPlaces(oHandler)->Contains(oPlace)) return false;
        }
        return oHandler->IsModuleInFocus();
    });
}

void VxHWConfigCtrlDD::P_FillDragModules(const DataObjectPtr& oData, bool bWithExchange) noexcept
{
    G_Trap(className(), "P_FillDragModules", [&] {
        G_Require(moDragModules, "The drag modules")->Clear();
        const std::int16_t nTextFormat = ConfigTextFormat();
        if (!G_Require(oData, "The data object")->GetFormat(nTextFormat)) return;
        const std::string sText = G_DecodeConfigText(oData->GetData(nTextFormat));
        ExchangeDataPtr oExchange;
        if (bWithExchange) {
            oExchange = CreateExchangeData();
            const std::int16_t nExchangeFormat = oExchange->FormatId();
            if (oData->GetFormat(nExchangeFormat)) oExchange->LoadData(oData->GetData(nExchangeFormat));
            else oExchange = nullptr;
        }
        moDragModules = G_Require(Station()->ModulesFromConfigText(sText, oExchange), "The collection of modules");
    });
}

void VxHWConfigCtrlDD::P_FillPossibleDropPlaces() noexcept
{
    G_Trap(className(), "P_FillPossibleDropPlaces", [&] {
        for (const auto& oModule : moDragModules) {
            if (oModule->IsEmpty()) continue;
            malPossibleDropPlaces = Station()->GetPossibleDropPlaces(oModule);
            return;
        }
    });
}

bool VxHWConfigCtrlDD::P_CanBePlaced(std::int32_t lPosition, std::int16_t nShift) noexcept
{
    return G_TrapValue(className(), "P_CanBePlaced", false, [&] {
        if (const auto found = mcolCanBePlaced.find(lPosition); found != mcolCanBePlaced.end()) return found->second;
        const bool bMove = IsMove(nShift);
        const auto oSourcePlaces = bMove ? G_SelPlaces(SelHandler()) : nullptr;
        const bool bCanBePlaced = Station()->CanBePlaced(lPosition, moDragModules, bMove, oSourcePlaces);
        mcolCanBePlaced.emplace(lPosition, bCanBePlaced);
        return bCanBePlaced;
    });
}

void VxHWConfigCtrlDD::P_CheckDropEffect(std::int32_t& lEffect, bool bCanDrop, std::int16_t /*nButton*/,
                                         std::int16_t nShift) noexcept
{
    if (!bCanDrop) lEffect = vxDropEffectNone;
    if (lEffect != vxDropEffectCopyOrMove) return;
    const bool bMove = mbDragSource ? IsMove(nShift) : (nShift & vxShiftMask) != 0;
    lEffect = bMove ? vxDropEffectMove : vxDropEffectCopy;
}

void VxHWConfigCtrlDD::P_State(VxEnumDragDropStates eNew) noexcept
{
    G_Trap(className(), "P_State", [&] {
        if (meState != eNew) P_RaiseEvent_StateChange(std::exchange(meState, eNew));
        G_Require(moTimer, "The timer")->Enabled(false);
    });
}

void VxHWConfigCtrlDD::P_RaiseEvent_StateChange(VxEnumDragDropStates ePrevious) noexcept
{
    G_Trap(className(), "P_RaiseEvent_StateChange", [&] {
        const auto subscribers = mcolSubscribers;
        for (const auto& weak : subscribers)
            if (const auto oSubscriber = weak.lock()) oSubscriber->StateChange(ePrevious);
    });
}

void VxHWConfigCtrlDD::moTimer_Timer() noexcept
{
    P_State(vxDragDropStateInactive);
}

bool VxHWConfigCtrlDD::IsMove(std::int16_t nShift) const
{
    return mbDragSource && (nShift & vxCtrlMask) == 0;
}

void VxHWConfigCtrlDD::LeaveView()
{
    mlDropPosition = vxNoPosition;
    RestoreFocus();
    ForgetDropDecisions();
    moDragModules->Clear();
    // The state ends with the timer: the drag may be on its way into another view.
    G_Require(moTimer, "The timer")->Enabled(true);
}

void VxHWConfigCtrlDD::EnterView()
{
    P_FillPossibleDropPlaces();
    mlFocusAtEnter = SelHandler()->FocusPosition();
    P_State(vxDragDropStateActive);
}

void VxHWConfigCtrlDD::MoveOver(std::int32_t lPosition, std::int16_t nShift)
{
    if (lPosition == vxNoPosition) mbLastCanDrop = false;
    if (lPosition == mlDropPosition) return;
    const PositionInfo info = G_PositionInfo(lPosition);
    if (IsGapOrPlace(info) && G_IsPresent(Station(), info)) {
        mbLastCanDrop = P_CanBePlaced(lPosition, nShift);
        mlDropPosition = lPosition;
        SelHandler()->FocusPosition(lPosition);
    } else {
        mbLastCanDrop = false;
        mlDropPosition = vxNoPosition;
    }
}

bool VxHWConfigCtrlDD::DropAt(std::int32_t lPosition, std::int16_t nShift)
{
    const auto oPlaces = G_ServiceRoot().modelFactory->CreateRackPlaces();
    const auto oHandler = SelHandler();
    const bool bDropped = P_CanBePlaced(lPosition, nShift);
    mlDropPosition = lPosition;
    {
        const WaitCursor waitCursor;
        if (IsMove(nShift)) Station()->MoveModules(lPosition, moDragModules, G_SelPlaces(oHandler), oPlaces);
        else Station()->PlaceModules(lPosition, moDragModules, oPlaces);
    }
    if (!bDropped) return false;
    G_SelectPlaces(oHandler, oPlaces);
    oHandler->FocusPosition(mlDropPosition);
    oHandler->ShiftSelPosition(oHandler->FocusPosition());
    return true;
}

void VxHWConfigCtrlDD::RestoreFocus()
{
    if (mlFocusAtEnter) SelHandler()->FocusPosition(*mlFocusAtEnter);
}

void VxHWConfigCtrlDD::ForgetDropDecisions()
{
    mcolCanBePlaced.clear();
    malPossibleDropPlaces = {};
}

void VxHWConfigCtrlDD::EndDrag()
{
    ForgetDropDecisions();
    mlDropPosition = vxNoPosition;
    mlFocusAtEnter.reset();
    mbDragSource = false;
}

} // namespace zqbchwcx
