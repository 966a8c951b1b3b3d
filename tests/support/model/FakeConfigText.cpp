#include "tests/support/model/FakeConfigText.h"

#include <sstream>

namespace zqbchwcx::testing {

FakeModule::FakeModule(CallLogPtr log) : Logged(std::move(log)), subModules(std::make_shared<FakeModules>(moLog)) {}

VxHWModulesPtr FakeModule::SubModules() const
{
    return Answer("VxHWModule.SubModules", subModules);
}

std::string FakeModules::ConfigText() const
{
    return Answer("VxHWModules.ConfigText", WriteFakeConfigText(members));
}

std::string WriteFakeConfigText(const FakeModuleList& modules)
{
    std::string text;
    for (const auto& module : modules) {
        const auto places = module->parent ? module->parent->placeCount : 0;
        if (module->orderNumber.empty()) text += "-\n";
        else
            text += module->orderNumber + ";" + module->name + ";" + std::to_string(module->indexInParent) + ";" +
                    std::to_string(places) + "\n";
    }
    return text;
}

FakeModuleList ReadFakeConfigText(std::string_view text, const CallLogPtr& log)
{
    FakeModuleList modules;
    FakeModulePtr parent;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        auto module = std::make_shared<FakeModule>(log);
        modules.push_back(module);
        if (line == "-") continue;
        std::istringstream fields(line);
        std::int32_t places = 0;
        char semicolon = 0;
        std::getline(fields, module->orderNumber, ';');
        std::getline(fields, module->name, ';');
        if (!(fields >> module->indexInParent >> semicolon >> places))
            throw VxError(vxErrorInvalidArgument, "Not a configuration text: " + line);
        if (module->indexInParent == 0) continue;
        if (module->indexInParent == 1 || !parent) {
            parent = std::make_shared<FakeModule>(*module);
            parent->indexInParent = 0;
            parent->placeCount = places;
        }
        module->parent = parent;
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
