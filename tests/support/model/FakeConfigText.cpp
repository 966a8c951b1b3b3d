#include "tests/support/model/FakeConfigText.h"

#include <sstream>

namespace zqbchwcx::testing {

FakeModule::FakeModule(CallLogPtr log) : Logged(std::move(log)), subModules(std::make_shared<FakeModules>(moLog)) {}

VxHWModulesPtr FakeModule::SubModules() const
{
    return Answer("Module.SubModules", subModules);
}

std::string FakeModules::ConfigText() const
{
    return Answer("Modules.ConfigText", WriteFakeConfigText(members));
}

std::string WriteFakeConfigText(const FakeModuleList& modules)
{
    std::ostringstream text;
    for (const auto& module : modules)
        text << (module->orderNumber.empty() ? "-" : module->orderNumber) << ' ' << module->indexInParent << ' '
             << (module->parent ? module->parent->placeCount : 0) << '\n';
    return text.str();
}

FakeModuleList ReadFakeConfigText(std::string_view text, const CallLogPtr& log)
{
    FakeModuleList modules;
    FakeModulePtr parent;
    std::istringstream input{std::string(text)};
    for (std::string orderNumber; input >> orderNumber;) {
        auto module = std::make_shared<FakeModule>(log);
        std::int32_t places = 0;
        if (!(input >> module->indexInParent >> places))
            throw VxError(vxErrorInvalidArgument, "Not a configuration text: " + std::string(text));
        if (orderNumber != "-") module->orderNumber = orderNumber;
        if (module->indexInParent == 1 || (module->indexInParent > 1 && !parent)) {
            parent = std::make_shared<FakeModule>(*module);
            parent->indexInParent = 0;
            parent->placeCount = places;
        }
        if (module->indexInParent > 0) module->parent = parent;
        modules.push_back(std::move(module));
    }
    return modules;
}

FakeModuleList MakeFakeMembers(const FakeModulePtr& parent, const CallLogPtr& log)
{
    FakeModuleList members;
    for (std::int32_t index = 1; index <= parent->placeCount; ++index) {
        auto member = std::make_shared<FakeModule>(*parent);
        member->placeCount = 0;
        member->indexInParent = index;
        member->parent = parent;
        member->subModules = std::make_shared<FakeModules>(log);
        members.push_back(member);
    }
    return members;
}

} // namespace zqbchwcx::testing
