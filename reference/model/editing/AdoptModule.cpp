#include "zqbchwcx/reference/model/editing/AdoptModule.h"

#include "zqbchwcx/reference/model/rules/ModuleRules.h"

#include <string>
#include <utility>

namespace zqbchwcx::reference {
namespace {

Objection AllotAddress(StationDraft& draft, ModuleData& module, const ModuleType& type, AddressArea area,
                       PlaceRef place)
{
    std::optional<std::int32_t>& address = AddressIn(area, module);
    const std::int32_t bytes = BytesIn(area, type);
    if (bytes <= 0) {
        address.reset();
        return {};
    }
    AddressMap& map = draft.Addresses().Of(area);
    if (!address || !map.IsFree(*address, bytes)) address = map.FirstFree(bytes);
    if (address) return {};
    const LocalizedText what = AreaText(area);
    const std::string count = std::to_string(bytes);
    return Refusal{Rule::NoFreeAddress,
                   place,
                   {"There are no " + count + " free bytes of " + what.en + " in a row for " + type.orderNumber,
                    "Es gibt keine " + count + " freien Bytes " + what.de + " am Stück für " + type.orderNumber}};
}

/// Claims what it allots, so that a sub-module does not get the addresses of its parent.
Objection AllotAddresses(StationDraft& draft, ModuleData& module, PlaceRef place)
{
    const Catalogue& catalogue = draft.ModuleTypes();
    const ModuleType& type = *catalogue.Find(module.orderNumber);
    for (const AddressArea area : {AddressArea::Input, AddressArea::Output}) {
        if (Objection objection = AllotAddress(draft, module, type, area, place)) return objection;
        if (const auto& address = AddressIn(area, module))
            draft.Addresses().Of(area).Claim(*address, BytesIn(area, type));
    }
    for (ModuleData& subModule : module.subModules)
        if (Objection objection = AllotAddresses(draft, subModule, place)) return objection;
    return {};
}

} // namespace

Outcome<ModuleDataPtr> AdoptModule(StationDraft& draft, const ModuleDataPtr& module, PlaceRef place)
{
    const Catalogue& catalogue = draft.ModuleTypes();
    ModuleData adopted = *module;
    if (const ModuleType* type = catalogue.Find(adopted.orderNumber); type && adopted.subModules.empty())
        adopted.subModules = NewModule(*type, catalogue).subModules;
    if (std::vector<Refusal> found = AgainstModule(adopted, catalogue, place); !found.empty())
        return std::move(found.front());
    if (Objection objection = AllotAddresses(draft, adopted, place)) return *std::move(objection);
    draft.Addresses().Release(adopted, catalogue);
    if (adopted == *module) return module;
    return ModuleDataPtr(std::make_shared<ModuleData>(std::move(adopted)));
}

} // namespace zqbchwcx::reference
