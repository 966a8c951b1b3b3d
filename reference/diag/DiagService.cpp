#include "zqbchwcx/reference/diag/DiagService.h"

#include "zqbchwcx/foundation/model/Collection.h"
#include "zqbchwcx/foundation/model/Enumerations.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/reference/model/contract/Module.h"
#include "zqbchwcx/reference/model/contract/RackPlace.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace zqbchwcx::reference {
namespace {

/// The module of a place: where its state stands, and how many sub-modules have one behind it.
struct ModuleAt {
    PlantItem item;
    const ModuleData* data;
    ModuleBodyPtr holder; ///< keeps the data
};

/// Nothing for an empty place, and where the plant has no state.
std::optional<ModuleAt> ModuleOf(const Plant& plant, const VxHWRackPlacePtr& oPlace)
{
    PlantItem item{RefOf(oPlace), 0};
    const VxHWModulePtr module = oPlace->Module();
    const ModuleBodyPtr& body = Module::Of(module).Body();
    if (!body->data) return {};
    item.place = body->firstPlace;
    if (!plant.Map().RegisterOf(item)) return {};
    return ModuleAt{item, body->data.get(), body};
}

bool HasFaultySubModule(const Plant& plant, const ModuleAt& module)
{
    PlantItem item = module.item;
    for (const std::size_t count = module.data->subModules.size(); static_cast<std::size_t>(item.subModule) < count;) {
        ++item.subModule;
        if (const auto state = plant.At(item); state && state->HasFailure()) return true;
    }
    return false;
}

std::int32_t CpuStateOf(OperatingState state)
{
    switch (state) {
    case OperatingState::Run:
        return vxCpuStateRun;
    case OperatingState::Stop:
        return vxCpuStateStop;
    case OperatingState::Hold:
        return vxCpuStateHold;
    case OperatingState::None:
        break;
    }
    return 0;
}

} // namespace

DiagService::DiagService(std::shared_ptr<const Plant> oPlant, std::shared_ptr<const Catalogue> oCatalogue)
    : moPlant(std::move(oPlant)), moCatalogue(std::move(oCatalogue))
{
}

std::int32_t DiagService::CpuState(const VxHWRackPlacePtr& oPlace) const
{
    const auto module = ModuleOf(*moPlant, oPlace);
    const auto state = module ? moPlant->At(module->item) : std::nullopt;
    if (!state) return 0;
    if (state->operatingState != OperatingState::None) return CpuStateOf(state->operatingState);
    const ModuleType* type = moCatalogue->Find(module->data->orderNumber);
    return type && type->family == ModuleFamily::Controller ? CpuStateOf(moPlant->ControllerState()) : 0;
}

std::int32_t DiagService::HasFailure(const VxHWRackPlacePtr& oPlace) const
{
    const auto module = ModuleOf(*moPlant, oPlace);
    if (!module) return 0;
    const auto state = moPlant->At(module->item);
    return !state || state->HasFailure() || HasFaultySubModule(*moPlant, *module) ? 1 : 0;
}

bool DiagService::HasDiagState(const VxHWRackPlacePtr& oPlace, std::int32_t lCategory) const
{
    const auto module = ModuleOf(*moPlant, oPlace);
    if (!module) return false;
    const auto state = moPlant->At(module->item);
    if (!state) return lCategory == vxDiagCategory4;
    return state->IsInCategory(lCategory) || (lCategory == vxDiagCategory2 && HasFaultySubModule(*moPlant, *module));
}

bool DiagService::HasDiagnosticInfo(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) const
{
    return !Findings(oPlace, oSubModule).empty();
}

std::vector<PlantFinding> DiagService::Findings(const VxHWRackPlacePtr& oPlace, const VxHWModulePtr& oSubModule) const
{
    std::vector<PlantFinding> findings;
    const auto module = ModuleOf(*moPlant, oPlace);
    if (!module) return findings;
    const auto add = [&](std::int32_t subModule, const ModuleData& data) {
        PlantItem item = module->item;
        item.subModule = subModule;
        auto finding = FindingAt(*moPlant, item, moCatalogue->Find(data.orderNumber), *moCatalogue);
        if (finding && moPlant->Map().RegisterOf(item)) findings.push_back(std::move(*finding));
    };
    if (oSubModule) {
        const ModuleBody& body = *Module::Of(oSubModule).Body();
        if (body.data) add(body.subModule, *body.data);
        return findings;
    }
    add(0, *module->data);
    // That nothing is known is told once for all of the module.
    if (!moPlant->IsKnown()) return findings;
    std::int32_t slot = 0;
    for (const ModuleData& subModule : module->data->subModules) add(++slot, subModule);
    return findings;
}

} // namespace zqbchwcx::reference
