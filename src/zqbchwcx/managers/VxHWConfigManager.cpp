#include "zqbchwcx/managers/VxHWConfigManager.h"

#include "zqbchwcx/controllers/SelectionSteps.h"
#include "zqbchwcx/controllers/config/VxHWConfigCtrlDD.h"
#include "zqbchwcx/controllers/config/VxHWConfigCtrlKey.h"
#include "zqbchwcx/controllers/config/VxHWConfigCtrlMouse.h"
#include "zqbchwcx/controllers/config/VxHWConfigROCtrlDD.h"
#include "zqbchwcx/controllers/config/VxHWConfigROCtrlKey.h"
#include "zqbchwcx/controllers/config/VxHWConfigROCtrlMouse.h"
#include "zqbchwcx/controllers/config/VxHWConfigROOfflineCtrlKey.h"
#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWModelFactory.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWConfigManager";

void CreateMissingSubModules(VxHWStation& station, const VxHWModulePtr& oModule)
{
    if (oModule->SubModuleCount() < 1) return;
    const auto oSubModules = oModule->SubModules();
    if (G_Require(oSubModules, "The collection of sub-modules")->Count() == 0) station.CreateSubModules(oModule);
}

} // namespace

VxHWConfigManager::VxHWConfigManager() noexcept : mRegistration(ClassName) {}

VxHWConfigManager::~VxHWConfigManager() = default;

VxHWSelectionHandlerPtr VxHWConfigManager::VxHWSelectionHandler() const noexcept
{
    return mControllers.SelHandler();
}

void VxHWConfigManager::Initialize(VxEnumStationType eStationType, IVxHWControlPtr oiRackOverview,
                                   IVxHWControlPtr oiRackTable, VxHWStationPtr oHWStation) noexcept
{
    G_Trap(ClassName, "Initialize", [&] {
        moHWStation = std::move(oHWStation);
        moiRackOverview = std::move(oiRackOverview);
        moiRackTable = std::move(oiRackTable);
        mControllers.MakeHandler();
        CreateControllers();
        ViewWiring wiring;
        wiring.eStationType = eStationType;
        wiring.eStyle = vxStyleHWConfig;
        wiring.oStation = moHWStation;
        mControllers.AddTo(wiring);
        G_ConnectView(*G_Require(moiRackOverview, "The rack overview"), wiring);
        G_ConnectView(*G_Require(moiRackTable, "The rack table"), wiring);
        mControllers.Connect(wiring);
        G_ConnectController(*G_Require(mControllers.DragDrop(), "The drag-and-drop controller"), wiring);
        Subscribe(moiRackOverview);
        Subscribe(moiRackTable);
        G_Require(moHWStation, "The station")->StartConfiguration();
        P_InitSelection();
    });
}

void VxHWConfigManager::Terminate() noexcept
{
    G_Trap(ClassName, "Terminate", [&] {
        G_DisconnectView(*G_Require(moiRackOverview, "The rack overview"), ModeService::None);
        G_DisconnectView(*G_Require(moiRackTable, "The rack table"), ModeService::None);
        mControllers.Disconnect(ModeService::None);
        if (const auto oDragDrop = mControllers.DragDrop()) {
            G_DisconnectController(*oDragDrop, ModeService::None);
            oDragDrop->RemoveAllSubscribers();
        }
        moiRackOverview = nullptr;
        moiRackTable = nullptr;
        moHWStation = nullptr;
        mControllers = {};
    });
}

bool VxHWConfigManager::SetSingleModuleToCurPos(const VxHWModulePtr& oModule) noexcept
{
    bool bPlaced = false;
    const bool bCompleted = G_Trap(ClassName, "SetSingleModuleToCurPos", [&] {
        const auto oStation = G_Require(moHWStation, "The station");
        oStation->PrepareModule(oModule);
        const auto oModules = ModulesToInsert(oModule);
        const auto oPlaces = G_ServiceRoot().modelFactory->CreateRackPlaces();
        oStation->IsDrawable(false);
        bPlaced = PlaceAtSelectionOrFocus(oModules, oPlaces);
        oStation->IsDrawable(true);
    });
    return bCompleted && bPlaced;
}

void VxHWConfigManager::Delete() noexcept
{
    Forward("Delete", &IVxHWKeyInputController::Delete);
}

void VxHWConfigManager::Cut() noexcept
{
    Forward("Cut", &IVxHWKeyInputController::Cut);
}

void VxHWConfigManager::Copy() noexcept
{
    Forward("Copy", &IVxHWKeyInputController::Copy);
}

void VxHWConfigManager::Paste() noexcept
{
    Forward("Paste", &IVxHWKeyInputController::Paste);
}

void VxHWConfigManager::EditModuleParams() noexcept
{
    Forward("EditModuleParams", &IVxHWKeyInputController::KeyReturn);
}

void VxHWConfigManager::CreateControllers()
{
    const auto oStation = G_Require(moHWStation, "The station");
    if (!oStation->IsReadOnly()) mControllers.Make<VxHWConfigCtrlMouse, VxHWConfigCtrlKey, VxHWConfigCtrlDD>();
    else if (oStation->DisplayMode() != vxDisplayModeOffline)
        mControllers.Make<VxHWConfigROCtrlMouse, VxHWConfigROCtrlKey, VxHWConfigROCtrlDD>();
    else mControllers.Make<VxHWConfigROCtrlMouse, VxHWConfigROOfflineCtrlKey, VxHWConfigROCtrlDD>();
}

void VxHWConfigManager::Subscribe(const IVxHWControlPtr& oiView) const
{
    // A view of a host that draws no drop markings has nothing to subscribe.
    if (const auto oSubscriber = std::dynamic_pointer_cast<IVxHWDragDropCtrlEvents>(oiView))
        G_Require(mControllers.DragDrop(), "The drag-and-drop controller")->AddSubscriber(oSubscriber);
}

void VxHWConfigManager::P_InitSelection() noexcept
{
    G_Trap(ClassName, "P_InitSelection", [&] {
        const auto oSelHandler = mControllers.SelHandler();
        const std::int32_t lNumber = G_StartFocus(moHWStation, oSelHandler);
        G_SelPlaces(oSelHandler)->Add(G_PlaceByNumber(moHWStation, 0, lNumber));
        oSelHandler->SelChangeComplete();
    });
}

VxHWModulesPtr VxHWConfigManager::ModulesToInsert(const VxHWModulePtr& oModule) const
{
    const auto oStation = G_Require(moHWStation, "The station");
    if (G_Require(oModule, "The module")->PlaceCount() < 1) {
        CreateMissingSubModules(*oStation, oModule);
        auto oModules = G_ServiceRoot().modelFactory->CreateModules();
        oModules->Add(oModule, true);
        return oModules;
    }
    auto oModules = oStation->ExpandModule(oModule);
    CreateMissingSubModules(*oStation, G_Require(oModules, "The collection of member modules")->Item(0));
    return oModules;
}

bool VxHWConfigManager::PlaceAtSelectionOrFocus(const VxHWModulesPtr& oModules, const VxHWRackPlacesPtr& oPlaces) const
{
    const auto oSelHandler = mControllers.SelHandler();
    const auto oSelPlaces = G_SelPlaces(oSelHandler);
    if (oSelPlaces->Count() == 0) return PlaceAt(oSelHandler->FocusPosition(), oModules, oPlaces);
    bool bPlaced = false;
    for (const auto& oPlace : oSelPlaces) {
        const std::int32_t lPosition = G_PlacePosition(oPlace->Rack()->Number(), oPlace->Number());
        if (PlaceAt(lPosition, oModules, oPlaces)) bPlaced = true;
    }
    return bPlaced;
}

bool VxHWConfigManager::PlaceAt(std::int32_t lPosition, const VxHWModulesPtr& oModules,
                                const VxHWRackPlacesPtr& oPlaces) const
{
    const auto oStation = G_Require(moHWStation, "The station");
    if (!oStation->CanBePlaced(lPosition, oModules, false, nullptr)) return false;
    oStation->PlaceModules(lPosition, oModules, oPlaces);
    return true;
}

template <class Command>
void VxHWConfigManager::Forward(const char* procedureName, Command command) noexcept
{
    G_Trap(ClassName, procedureName, [&] {
        const auto oiKeyInput = G_Require(mControllers.KeyInput(), "The key controller");
        (*oiKeyInput.*command)();
    });
}

} // namespace zqbchwcx
