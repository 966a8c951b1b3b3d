#include "zqbchwcx/reference/model/contract/Modules.h"

#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/reference/model/configtext/ConfigText.h"
#include "zqbchwcx/reference/model/contract/Module.h"

#include <algorithm>
#include <string>
#include <unordered_set>
#include <utility>

namespace zqbchwcx::reference {
namespace {

std::vector<const Module*> InOrderOfPlaces(std::vector<const Module*> modules)
{
    const bool allStand = std::all_of(modules.begin(), modules.end(), [](const Module* module) {
        return module->Body()->station && module->Body()->subModule == 0;
    });
    if (allStand)
        std::stable_sort(modules.begin(), modules.end(),
                         [](const Module* a, const Module* b) { return a->Place() < b->Place(); });
    return modules;
}

/// Tells whether a member's module has been met before, by the members' common body or by their place.
class MetModules {
public:
    bool IsNew(const Module& member)
    {
        const ModuleBody& body = *member.Body();
        if (!body.station) return mcolBodies.insert(&body).second;
        return mcolFirstPlaces.insert(std::int64_t{body.firstPlace.rack} * (MaxPlaces + 1) + body.firstPlace.place)
            .second;
    }

private:
    std::unordered_set<const ModuleBody*> mcolBodies;
    std::unordered_set<std::int64_t> mcolFirstPlaces;
};

} // namespace

Modules::Modules(ModelContextPtr oContext) : moContext(std::move(oContext)) {}

Modules::Modules(ModelContextPtr oContext, const ModuleBlock& block, std::int32_t stationKind)
    : Modules(std::move(oContext))
{
    for (const ModuleDataPtr& data : block) {
        auto body = std::make_shared<ModuleBody>();
        body->context = moContext;
        body->data = data;
        body->stationKind = stationKind;
        for (VxHWModulePtr& member : MembersOf(body)) mcolModules.push_back(std::move(member));
    }
}

VxHWModulePtr Modules::Item(std::int32_t lIndex) const
{
    if (lIndex < 0 || lIndex >= Count())
        throw VxError(vxErrorSubscript, "There is no module " + std::to_string(lIndex) + " in the collection");
    return mcolModules[static_cast<std::size_t>(lIndex)];
}

void Modules::Add(const VxHWModulePtr& oModule, bool /*bFlag*/)
{
    static_cast<void>(Module::Of(oModule));
    mcolModules.push_back(oModule);
}

std::string Modules::ConfigText() const
{
    return WriteConfigText(BlockOf(*this));
}

bool Modules::Contains(const VxHWModulePtr& oModule) const
{
    const Module& wanted = Module::Of(oModule);
    return std::any_of(mcolModules.begin(), mcolModules.end(),
                       [&](const VxHWModulePtr& module) { return Module::Of(module).IsSame(wanted); });
}

ModuleBlock BlockOf(const VxHWModules& modules)
{
    std::vector<const Module*> parts;
    std::vector<VxHWModulePtr> keptAlive;
    for (const VxHWModulePtr& module : modules) {
        parts.push_back(&Module::Of(module));
        keptAlive.push_back(module);
    }
    ModuleBlock block;
    MetModules met;
    for (const Module* part : InOrderOfPlaces(std::move(parts)))
        if (part->IndexInParent() == 0 || met.IsNew(*part)) block.push_back(part->Body()->data);
    return block;
}

} // namespace zqbchwcx::reference
