#include "zqbchwcx/reference/compare/FindMoved.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace zqbchwcx::reference {
namespace {

ModuleData WithoutPlaceAndIgnored(const ModuleData& module, const CompareOptions& options)
{
    ModuleData content = module;
    content.inputAddress.reset();
    content.outputAddress.reset();
    if (options.ignoreNames) content.name.clear();
    if (options.ignoreComments) content.comment.clear();
    if (options.ignoreParameters) content.parameters.clear();
    if (options.ignoreSubModules) content.subModules.clear();
    for (ModuleData& subModule : content.subModules) subModule = WithoutPlaceAndIgnored(subModule, options);
    return content;
}

bool Before(const ModuleData& a, const ModuleData& b)
{
    const auto key = [](const ModuleData& module) {
        return std::tie(module.orderNumber, module.name, module.comment, module.parameters);
    };
    if (key(a) != key(b)) return key(a) < key(b);
    return std::lexicographical_compare(a.subModules.begin(), a.subModules.end(), b.subModules.begin(),
                                        b.subModules.end(), Before);
}

/// Where modules of one content begin.
struct Standing {
    std::vector<std::int32_t> first;
    std::vector<std::int32_t> second;
};

using Standings = std::map<ModuleData, Standing, decltype(&Before)>;

Standings StandingsIn(std::span<const PlaceDifference> differences, const CompareOptions& options)
{
    Standings standings(&Before);
    for (const PlaceDifference& difference : differences) {
        // A run of places may be any part of a module; it counts once, where it begins.
        const auto add = [&](const ModuleDataPtr& module, std::int32_t begin, auto side) {
            if (module && begin == difference.place.place)
                (standings[WithoutPlaceAndIgnored(*module, options)].*side).push_back(begin);
        };
        add(difference.first, difference.firstBegin, &Standing::first);
        add(difference.second, difference.secondBegin, &Standing::second);
    }
    return standings;
}

} // namespace

void FindMoved(std::span<const PlaceDifference> differences, const CompareOptions& options,
               std::vector<MovedModules>& moved)
{
    std::map<std::int32_t, MovedModules> byShift;
    for (const auto& [content, standing] : StandingsIn(differences, options)) {
        // Equal modules keep their order when they are moved together.
        for (std::size_t i = 0; i < std::min(standing.first.size(), standing.second.size()); ++i) {
            const std::int32_t place = standing.first[i];
            const std::int32_t shift = standing.second[i] - place;
            if (shift == 0) continue;
            MovedModules& group =
                byShift.try_emplace(shift, MovedModules{differences.front().place.rack, shift, place, place, 0})
                    .first->second;
            group.firstPlace = std::min(group.firstPlace, place);
            group.lastPlace = std::max(group.lastPlace, place);
            ++group.count;
        }
    }
    for (const auto& [shift, group] : byShift) moved.push_back(group);
}

} // namespace zqbchwcx::reference
