#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include "zqbchwcx/foundation/Nothing.h"
#include "zqbchwcx/foundation/PlaceLookup.h"
#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWModelFactory.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"

#include <utility>

namespace zqbchwcx {
namespace {

constexpr std::string_view ClassName = "VxHWSelectionHandler";

bool HasModule(const VxHWRackPlacePtr& oPlace)
{
    return !oPlace->Module()->IsEmpty();
}

} // namespace

VxHWSelectionHandler::VxHWSelectionHandler() noexcept : mRegistration(ClassName)
{
    G_Trap(ClassName, "Class_Initialize", [&] { moSelPlaces = G_ServiceRoot().modelFactory->CreateRackPlaces(); });
}

VxHWSelectionHandler::~VxHWSelectionHandler() = default;

VxHWRackPlacesPtr VxHWSelectionHandler::SelPlaces() const noexcept
{
    return moSelPlaces;
}

Array2D<bool> VxHWSelectionHandler::SelPlacesArray() const noexcept
{
    Array2D<bool> abSelPlaces;
    G_Trap(ClassName, "SelPlacesArray", [&] { abSelPlaces = mabSelPlaces; });
    return abSelPlaces;
}

std::int32_t VxHWSelectionHandler::FocusPosition() const noexcept
{
    return mlFocusPosition;
}

void VxHWSelectionHandler::FocusPosition(std::int32_t lPosition) noexcept
{
    G_Trap(ClassName, "FocusPosition", [&] {
        if (lPosition == mlFocusPosition) return;
        FocusChange.Raise(std::exchange(mlFocusPosition, lPosition));
    });
}

std::int32_t VxHWSelectionHandler::ShiftSelPosition() const noexcept
{
    return mlShiftSelPosition;
}

void VxHWSelectionHandler::ShiftSelPosition(std::int32_t lPosition) noexcept
{
    mlShiftSelPosition = lPosition;
}

VxHWStationPtr VxHWSelectionHandler::VxHWStation() const noexcept
{
    return moStation;
}

void VxHWSelectionHandler::VxHWStation(VxHWStationPtr oStation) noexcept
{
    G_Trap(ClassName, "VxHWStation", [&] {
        moStation = std::move(oStation);
        mabSelPlaces = {};
        if (!moStation) return;
        const auto oRacks = G_Require(moStation, "The station")->Racks();
        mabSelPlaces = {0, oRacks->Count() - 1, 1, oRacks->Item(0)->Places()->Count()};
    });
}

void VxHWSelectionHandler::SelChangeComplete() noexcept
{
    G_Trap(ClassName, "SelChangeComplete", [&] {
        const auto oRacks = G_Require(moStation, "The station")->Racks();
        const std::int32_t lRacks = oRacks->Count();
        for (std::int32_t lRack = 0; lRack < lRacks; ++lRack) {
            const std::int32_t lPlaces = oRacks->Item(lRack)->Places()->Count();
            for (std::int32_t lPlace = 1; lPlace <= lPlaces; ++lPlace) mabSelPlaces.Set(lRack, lPlace, false);
        }
        const auto oSelPlaces = G_Require(moSelPlaces, "The selection");
        for (const auto& oPlace : oSelPlaces) mabSelPlaces.Set(oPlace->Rack()->Number(), oPlace->Number(), true);
        SelChange.Raise();
        // Whoever marks the focus of an empty selection in a gap has to draw it anew. No focus (-1) is odd, too.
        if (mlFocusPosition % 2 != 0 && moSelPlaces->Count() == 0) FocusChange.Raise(-1);
    });
}

void VxHWSelectionHandler::SelectRange(std::int32_t lFromPosition, std::int32_t lToPosition) noexcept
{
    G_Trap(ClassName, "SelectRange", [&] {
        const std::int32_t lRack = lFromPosition / vxRackFactor;
        if (lToPosition / vxRackFactor != lRack) return;
        const auto oPlaces = G_RackByNumber(moStation, lRack)->Places();
        const bool bSkipNotUsable = G_Require(moStation, "The station")->StationKind() != vxStationKindCentral;
        const std::int32_t lFirst = lFromPosition - lRack * vxRackFactor;
        const std::int32_t lLast = lToPosition - lRack * vxRackFactor;
        const std::int32_t lStep = lFirst <= lLast ? 1 : -1;
        for (std::int32_t lCode = lFirst; lCode != lLast + lStep; lCode += lStep) {
            // Gaps, the rack itself (0) and no position (-1) are no places.
            if (lCode % 2 != 0 || lCode == 0) continue;
            const auto oPlace = oPlaces->Item(lCode / 2);
            if (bSkipNotUsable && oPlace->Usability() == vxPlaceNotUsable) continue;
            if (!G_Require(moSelPlaces, "The selection")->Contains(oPlace)) moSelPlaces->Add(oPlace);
        }
    });
}

void VxHWSelectionHandler::SelectRack(const VxHWRackPtr& oRack) noexcept
{
    G_Trap(ClassName, "SelectRack", [&] {
        G_Require(moSelPlaces, "The selection")->Clear();
        const bool bSkipNotUsable = G_Require(moStation, "The station")->StationKind() != vxStationKindCentral;
        const auto oPlaces = G_Require(oRack, "The rack")->Places();
        for (const auto& oPlace : oPlaces) {
            if (bSkipNotUsable && oPlace->Usability() == vxPlaceNotUsable) continue;
            moSelPlaces->Add(oPlace);
        }
    });
}

bool VxHWSelectionHandler::IsParentModuleSelected(const VxHWModulePtr& oParentModule) const noexcept
{
    return G_TrapValue(ClassName, "IsParentModuleSelected", false, [&] {
        const auto oPlaces = G_Require(moStation, "The station")->ParentModulePlaces(oParentModule);
        for (const auto& oPlace : oPlaces) {
            if (oPlace->Module()->IndexInParent() < 1) continue;
            if (G_Require(moSelPlaces, "The selection")->Contains(oPlace)) return true;
        }
        return false;
    });
}

bool VxHWSelectionHandler::IsModuleInSelection() const noexcept
{
    bool bFound = false;
    FindModuleInSelection(bFound);
    return bFound;
}

bool VxHWSelectionHandler::FindModuleInSelection(bool& bFound) const noexcept
{
    bFound = false;
    return G_Trap(ClassName, "IsModuleInSelection", [&] {
        const auto oSelPlaces = G_Require(moSelPlaces, "The selection");
        for (const auto& oPlace : oSelPlaces) {
            bFound = HasModule(oPlace);
            if (bFound) return;
        }
    });
}

bool VxHWSelectionHandler::IsModuleInFocus() const noexcept
{
    return G_TrapValue(ClassName, "IsModuleInFocus", false, [&] {
        const PositionInfo focus = G_PositionInfo(mlFocusPosition);
        return focus.eType == vxPositionPlace && HasModule(G_PlaceByNumber(moStation, focus.lRack, focus.lNumber));
    });
}

VxHWModulesPtr VxHWSelectionHandler::GetSelectedModules() const noexcept
{
    VxHWModulesPtr oModules;
    CollectSelectedModules(oModules);
    return oModules;
}

bool VxHWSelectionHandler::CollectSelectedModules(VxHWModulesPtr& oModules) const noexcept
{
    oModules = nullptr;
    return G_Trap(ClassName, "GetSelectedModules", [&] {
        auto& factory = *G_ServiceRoot().modelFactory;
        oModules = factory.CreateModules();
        const auto oGathered = factory.CreateRackPlaces();
        const auto oParents = factory.CreateModules();
        const auto oSelPlaces = G_Require(moSelPlaces, "The selection");
        for (const auto& oPlace : oSelPlaces) {
            oGathered->Add(oPlace);
            const auto oModule = oPlace->Module();
            if (oModule->IndexInParent() <= 0) continue;
            const auto oParent = oModule->ParentModule();
            if (!oParents->Contains(oParent)) oParents->Add(oParent, true);
        }
        for (const auto& oParent : oParents) {
            const auto oPlaces = G_Require(moStation, "The station")->ParentModulePlaces(oParent);
            for (const auto& oPlace : oPlaces)
                if (!oGathered->Contains(oPlace)) oGathered->Add(oPlace);
        }
        for (const auto& oPlace : oGathered) {
            const auto oModule = oPlace->Module();
            // A place reached only through a module that spans several places contributes nothing of its own.
            const bool bOwn = oModule->IndexInParent() > 0 || moSelPlaces->Contains(oPlace);
            oModules->Add(bOwn ? oModule : factory.CreateModule(), true);
        }
    });
}

bool VxHWSelectionHandler::SetSelectionToClipboard() const noexcept
{
    bool bModules = false;
    if (!FindModuleInSelection(bModules)) return false;
    if (!bModules) return true;
    VxHWModulesPtr oModules;
    if (!CollectSelectedModules(oModules)) return false;
    return G_Trap(ClassName, "SetSelectionToClipboard", [&] {
        const auto oExchange = G_Require(G_ServiceRoot().objectFactory->CreateExchangeData(), "The exchange object");
        oExchange->StartEmpty();
        G_Require(moStation, "The station")->WriteModulesToExchange(oModules, oExchange);
        oExchange->PutOnClipboard();
    });
}

} // namespace zqbchwcx
