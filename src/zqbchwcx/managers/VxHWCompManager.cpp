#include "zqbchwcx/managers/VxHWCompManager.h"

#include "zqbchwcx/controllers/compare/VxHWCompCtrlDD.h"
#include "zqbchwcx/controllers/compare/VxHWCompCtrlKey.h"
#include "zqbchwcx/controllers/compare/VxHWCompCtrlMouse.h"
#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWCompareService.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"

#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWCompManager";

void RefreshIfOnline(const VxHWStationPtr& oStation)
{
    if (oStation->DisplayMode() != vxDisplayModeOffline) oStation->RefreshOnline();
}

} // namespace

VxHWCompManager::VxHWCompManager() noexcept : mRegistration(ClassName) {}

VxHWCompManager::~VxHWCompManager() = default;

VxHWSelectionHandlerPtr VxHWCompManager::VxHWSelectionHandler() const noexcept
{
    return mControllers.SelHandler();
}

void VxHWCompManager::Initialize(VxEnumStationType eStationType, IVxHWControlPtr oiRackOverview,
                                 IVxHWCompareControlPtr oiRackTableCompare, IVxHWCompareControlPtr oiDeltaList,
                                 VxHWStationPtr oHWStation1, VxHWStationPtr oHWStation2,
                                 VxHWCompareServicePtr oHWCompare, HWCompareType eCompareType) noexcept
{
    G_Trap(ClassName, "Initialize", [&] {
        moHWStation1 = std::move(oHWStation1);
        moHWStation2 = std::move(oHWStation2);
        moHWCompare = std::move(oHWCompare);
        moiRackOverview = std::move(oiRackOverview);
        moiRackTableCompare = std::move(oiRackTableCompare);
        moiDeltaList = std::move(oiDeltaList);
        mControllers.MakeHandler();
        mControllers.Make<VxHWCompCtrlMouse, VxHWCompCtrlKey, VxHWCompCtrlDD>();
        ViewWiring wiring;
        wiring.eService = ModeService::Compare;
        wiring.eStationType = eStationType;
        wiring.eStyle = vxStyleHWCompare;
        wiring.eCompareType = eCompareType;
        wiring.oStation = moHWStation1;
        wiring.oStation2 = moHWStation2;
        wiring.oCompareService = moHWCompare;
        mControllers.AddTo(wiring);
        G_ConnectView(*RackOverview(), wiring);
        G_ConnectCompareTable(*RackTable(), wiring);
        G_ConnectDeltaList(*DeltaList(), wiring);
        mControllers.Connect(wiring);
        CompareAndDraw();
        P_InitSelection();
    });
}

void VxHWCompManager::Terminate() noexcept
{
    G_Trap(ClassName, "Terminate", [&] {
        G_DisconnectView(*RackOverview(), ModeService::Compare);
        G_DisconnectCompareTable(*RackTable());
        G_DisconnectDeltaList(*DeltaList());
        mControllers.Disconnect(ModeService::Compare);
        moiRackOverview = nullptr;
        moiRackTableCompare = nullptr;
        moiDeltaList = nullptr;
        moHWCompare = nullptr;
        moHWStation1 = nullptr;
        moHWStation2 = nullptr;
        mControllers = {};
    });
}

void VxHWCompManager::Refresh() noexcept
{
    G_Trap(ClassName, "Refresh", [&] {
        RefreshIfOnline(G_Require(moHWStation1, "The first station"));
        RefreshIfOnline(G_Require(moHWStation2, "The second station"));
        CompareAndDraw();
    });
}

void VxHWCompManager::P_InitSelection() noexcept
{
    G_Trap(ClassName, "P_InitSelection", [&] { G_StartFocus(moHWStation1, mControllers.SelHandler()); });
}

void VxHWCompManager::CompareAndDraw() const
{
    G_Require(moHWCompare, "The compare service")->Compare();
    RackOverview()->Refresh();
    RackTable()->Refresh();
    DeltaList()->Refresh();
}

IVxHWControlPtr VxHWCompManager::RackOverview() const
{
    return G_Require(moiRackOverview, "The rack overview");
}

IVxHWCompareControlPtr VxHWCompManager::RackTable() const
{
    return G_Require(moiRackTableCompare, "The compare table");
}

IVxHWCompareControlPtr VxHWCompManager::DeltaList() const
{
    return G_Require(moiDeltaList, "The list of differences");
}

} // namespace zqbchwcx
