#include "zqbchwcx/reference/commands/ModuleList.h"

#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"

namespace zqbchwcx::reference {
namespace {

ModuleRow RowOf(const ModuleData& module, const Catalogue& catalogue, Language language)
{
    const ModuleType* type = catalogue.Find(module.orderNumber);
    ModuleRow row;
    row.module = module.name.empty() && type ? type->name.In(language) : module.name;
    row.orderNumber = module.orderNumber;
    row.inputs = AddressText(AddressArea::Input, module, type);
    row.outputs = AddressText(AddressArea::Output, module, type);
    row.comment = module.comment;
    return row;
}

} // namespace

std::vector<ModuleRow> ListModules(const StationData& station, const Catalogue& catalogue, Language language)
{
    std::vector<ModuleRow> rows;
    for (std::size_t rack = 0; rack < station.racks.size(); ++rack) {
        const auto& places = station.racks[rack]->places;
        for (std::size_t place = 0; place < places.size(); ++place) {
            const ModuleDataPtr& module = places[place].module;
            if (!module) continue;
            const auto add = [&](const ModuleData& data, std::size_t subModule) {
                ModuleRow row = RowOf(data, catalogue, language);
                row.rack = static_cast<std::int32_t>(rack);
                row.place = static_cast<std::int32_t>(place + 1);
                row.subModule = static_cast<std::int32_t>(subModule);
                rows.push_back(std::move(row));
            };
            add(*module, 0);
            for (std::size_t i = 0; i < module->subModules.size(); ++i) add(module->subModules[i], i + 1);
        }
    }
    return rows;
}

} // namespace zqbchwcx::reference
