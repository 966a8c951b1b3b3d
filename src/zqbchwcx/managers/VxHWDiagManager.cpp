#include "zqbchwcx/managers/VxHWDiagManager.h"

#include "zqbchwcx/controllers/diag/VxHWDiagCtrlDD.h"
#include "zqbchwcx/controllers/diag/VxHWDiagCtrlKey.h"
#include "zqbchwcx/controllers/diag/VxHWDiagCtrlMouse.h"
#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWDiagService.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"

#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWDiagManager";

} // namespace

VxHWDiagManager::VxHWDiagManager() noexcept : mRegistration(ClassName) {}

VxHWDiagManager::~VxHWDiagManager() = default;

VxHWSelectionHandlerPtr VxHWDiagManager::VxHWSelectionHandler() const noexcept
{
    return mControllers.SelHandler();
}

void VxHWDiagManager::Initialize(VxEnumStationType eStationType, IVxHWControlPtr oiRackOverview,
                                 IVxHWControlPtr oiRackTable, IVxHWControlPtr oiDiagPanel, VxHWStationPtr oHWStation,
                                 VxHWDiagServicePtr oHWDiag) noexcept
{
    G_Trap(ClassName, "Initialize", [&] {
        moHWStation = std::move(oHWStation);
        moiRackOverview = std::move(oiRackOverview);
        moiRackTable = std::move(oiRackTable);
        moiDiagPanel = std::move(oiDiagPanel);
        moHWDiag = std::move(oHWDiag);
        const auto oService = G_Require(moHWDiag, "The diagnostics service");
        oService->Station(moHWStation);
        mControllers.MakeHandler();
        mControllers.Make<VxHWDiagCtrlMouse, VxHWDiagCtrlKey, VxHWDiagCtrlDD>();
        ViewWiring wiring;
        wiring.eService = ModeService::Diag;
        wiring.eStationType = eStationType;
        wiring.eStyle = vxStyleHWDiag;
        wiring.oStation = moHWStation;
        wiring.oDiagService = oService;
        mControllers.AddTo(wiring);
        G_ConnectView(*RackOverview(), wiring);
        G_ConnectView(*RackTable(), wiring);
        G_ConnectPanel(*DiagPanel(), wiring);
        mControllers.Connect(wiring);
        RackOverview()->Refresh();
        RackTable()->Refresh();
        P_InitSelection();
    });
}

void VxHWDiagManager::Terminate() noexcept
{
    G_Trap(ClassName, "Terminate", [&] {
        G_DisconnectView(*RackOverview(), ModeService::Diag);
        G_DisconnectView(*RackTable(), ModeService::Diag);
        G_DisconnectPanel(*DiagPanel());
        mControllers.Disconnect(ModeService::Diag);
        moiRackOverview = nullptr;
        moiRackTable = nullptr;
        moiDiagPanel = nullptr;
        moHWDiag = nullptr;
        moHWStation = nullptr;
        mControllers = {};
    });
}

void VxHWDiagManager::Refresh() noexcept
{
    G_Trap(ClassName, "Refresh", [&] {
        G_Require(moHWStation, "The station")->RefreshDiagnostics();
        G_Require(moHWDiag, "The diagnostics service")->Station(moHWStation);
        RackOverview()->Refresh();
        RackTable()->Refresh();
        DiagPanel()->Refresh();
    });
}

void VxHWDiagManager::P_InitSelection() noexcept
{
    G_Trap(ClassName, "P_InitSelection", [&] { G_StartFocus(moHWStation, mControllers.SelHandler()); });
}

IVxHWControlPtr VxHWDiagManager::RackOverview() const
{
    return G_Require(moiRackOverview, "The rack overview");
}

IVxHWControlPtr VxHWDiagManager::RackTable() const
{
    return G_Require(moiRackTable, "The rack table");
}

IVxHWControlPtr VxHWDiagManager::DiagPanel() const
{
    return G_Require(moiDiagPanel, "The diagnostics panel");
}

} // namespace zqbchwcx
