#include "zqbchwcx/reference/diag/PlantLog.h"

#include "zqbchwcx/reference/commands/ModuleList.h"

#include <utility>

namespace zqbchwcx::reference {
namespace {

bool IsSame(const std::optional<PlantFinding>& a, const std::optional<PlantFinding>& b)
{
    if (!a || !b) return !a && !b;
    return a->what.en == b->what.en && a->channel == b->channel;
}

LocalizedText WhatText(const PlantFinding& finding)
{
    if (finding.channel == 0) return finding.what;
    const std::string channel = std::to_string(finding.channel);
    return {finding.what.en + ", channel " + channel, finding.what.In(Language::German) + ", Kanal " + channel};
}

} // namespace

LocalizedText LogEventText(LogEvent event)
{
    switch (event) {
    case LogEvent::Came:
        return {"came", "kam"};
    case LogEvent::Went:
        return {"went", "ging"};
    case LogEvent::Note:
        break;
    }
    return {};
}

PlantLog::PlantLog(const StationData& station, const Catalogue& catalogue) : moCatalogue(catalogue)
{
    for (ModuleRow& row : ListModules(station, catalogue, Language::English))
        mcolModules[{{row.rack, row.place}, row.subModule}] = {
            {std::move(row.module), {}}, std::move(row.orderNumber), {}};
    for (ModuleRow& row : ListModules(station, catalogue, Language::German))
        mcolModules[{{row.rack, row.place}, row.subModule}].name.de = std::move(row.module);
}

std::vector<PlantLogEntry> PlantLog::Read(const Plant& plant, const PlantChange& change)
{
    std::vector<PlantLogEntry> entries;
    if (change.connection)
        entries.push_back({change.at, {}, {}, LogEvent::Note, ConnectionText(plant.State().connection)});
    if (!plant.IsKnown()) return entries;
    if (meController != plant.ControllerState()) {
        meController = plant.ControllerState();
        const std::string state = OperatingStateText(*meController);
        if (!state.empty())
            entries.push_back({change.at, {}, {}, LogEvent::Note, {"Controller: " + state, "Steuerung: " + state}});
    }
    for (const PlantItem& item : change.items) ReadModule(plant, item, change.at, entries);
    return entries;
}

void PlantLog::ReadModule(const Plant& plant, const PlantItem& item, Time at, std::vector<PlantLogEntry>& entries)
{
    const auto found = mcolModules.find(item);
    if (found == mcolModules.end()) return;
    Module& module = found->second;
    auto finding = FindingAt(plant, item, moCatalogue.Find(module.orderNumber), moCatalogue);
    if (IsSame(finding, module.finding)) return;
    if (module.finding) entries.push_back({at, item, module.name, LogEvent::Went, WhatText(*module.finding)});
    if (finding) entries.push_back({at, item, module.name, LogEvent::Came, WhatText(*finding)});
    module.finding = std::move(finding);
}

std::int32_t PlantLog::FaultyModules(std::int32_t lRack) const
{
    std::int32_t lCount = 0;
    std::int32_t lCounted = 0; // the place that was counted last: a module and its sub-modules follow each other
    for (auto it = mcolModules.lower_bound({{lRack, 0}, 0}); it != mcolModules.end(); ++it) {
        const PlaceRef& place = it->first.place;
        if (place.rack != lRack) break;
        if (!it->second.finding || place.place == lCounted) continue;
        lCounted = place.place;
        ++lCount;
    }
    return lCount;
}

} // namespace zqbchwcx::reference
