#include "zqbchwcx/reference/diag/PlantFinding.h"

#include "zqbchwcx/reference/commands/ModuleList.h"

#include <utility>

namespace zqbchwcx::reference {
namespace {

FaultText TextWithoutCode(const StateWord& state)
{
    if (!state.isPresent)
        return {{"Module not plugged in", "Baugruppe nicht gesteckt"},
                {"Plug in the module, or take it out of the configuration.",
                 "Baugruppe stecken oder aus dem Projekt nehmen."}};
    if (state.isFaulty) return {{"Module faulty", "Baugruppe gestört"}, {}};
    if (state.isInaccessible) return {{"Module not accessible", "Baugruppe nicht erreichbar"}, {}};
    return {{"Fault reported", "Fehler gemeldet"}, {}};
}

FaultText TextOf(const StateWord& state, const ModuleType* type, const Catalogue& catalogue)
{
    if (state.faultCode == 0) return TextWithoutCode(state);
    const auto family = type ? std::optional(type->family) : std::nullopt;
    if (const FaultText* text = catalogue.FindFault(family, state.faultCode)) return *text;
    const std::string code = std::to_string(state.faultCode);
    return {{"Fault with the code " + code, "Fehler mit dem Code " + code}, {}};
}

} // namespace

std::optional<PlantFinding> FindingAt(const Plant& plant, const PlantItem& item, const ModuleType* type,
                                      const Catalogue& catalogue)
{
    PlantFinding finding;
    finding.item = item;
    finding.since = plant.Since(item);
    const auto state = plant.At(item);
    if (!state) {
        const LocalizedText connection = ConnectionText(plant.State().connection);
        finding.what = {"State unknown: " + connection.en, "Zustand unbekannt: " + connection.de};
        return finding;
    }
    if (!state->HasFailure()) return {};
    FaultText text = TextOf(*state, type, catalogue);
    finding.what = std::move(text.what);
    finding.remedy = std::move(text.remedy);
    finding.channel = state->channel;
    finding.faultCode = state->faultCode;
    return finding;
}

std::vector<ModuleFindings> ModulesOf(const Plant& plant, const StationData& station, const Catalogue& catalogue,
                                      Language language)
{
    std::vector<ModuleFindings> modules;
    for (ModuleRow& row : ListModules(station, catalogue, language)) {
        const PlantItem item{{row.rack, row.place}, row.subModule};
        if (!plant.Map().RegisterOf(item)) continue;
        const ModuleType* type = catalogue.Find(row.orderNumber);
        modules.push_back({item, std::move(row.module), row.orderNumber, FindingAt(plant, item, type, catalogue)});
    }
    return modules;
}

} // namespace zqbchwcx::reference
