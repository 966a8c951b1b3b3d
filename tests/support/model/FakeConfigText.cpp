#include "tests/support/model/FakeConfigText.h"

#include <sstream>

namespace zqbchwcx::testing {

std::string FakeModules::ConfigText() const
{
    moLog->Call("VxHWModules.ConfigText");
    return WriteFakeConfigText(modules);
}

std::string WriteFakeConfigText(const std::vector<VxHWModulePtr>& modules)
{
    std::string text;
    for (const auto& oModule : modules) {
        const auto& module = dynamic_cast<const FakeModule&>(*oModule);
        const auto places = module.parent ? module.parent->placeCount : 0;
        if (module.orderNumber.empty()) text += "-\n";
        else
            text += module.orderNumber + ";" + module.name + ";" + std::to_string(module.indexInParent) + ";" +
                    std::to_string(places) + "\n";
    }
    return text;
}

std::vector<VxHWModulePtr> ReadFakeConfigText(std::string_view text, const CallLogPtr& log)
{
    std::vector<VxHWModulePtr> modules;
    FakeModulePtr parent;
    std::istringstream lines{std::string(text)};
    for (std::string line; std::getline(lines, line);) {
        auto module = std::make_shared<FakeModule>(log);
        modules.push_back(module);
        if (line == "-") continue;
        std::istringstream fields(line);
        std::string index;
        std::string places;
        std::getline(fields, module->orderNumber, ';');
        std::getline(fields, module->name, ';');
        std::getline(fields, index, ';');
        std::getline(fields, places, ';');
        if (places.empty()) throw VxError(vxErrorInvalidArgument, "Not a configuration text: " + line);
        module->indexInParent = std::stoi(index);
        if (module->indexInParent == 0) continue;
        if (module->indexInParent == 1 || !parent) {
            parent = CopyFakeModule(*module, log);
            parent->indexInParent = 0;
            parent->placeCount = std::stoi(places);
        }
        module->parent = parent;
    }
    return modules;
}

FakeModulePtr CopyFakeModule(const FakeModule& module, const CallLogPtr& log)
{
    auto copy = std::make_shared<FakeModule>(module);
    copy->subModules = std::make_shared<FakeModules>(log);
    for (const auto& oSub : module.subModules->modules)
        copy->subModules->modules.push_back(CopyFakeModule(dynamic_cast<const FakeModule&>(*oSub), log));
    return copy;
}

std::vector<VxHWModulePtr> MakeFakeMembers(const FakeModulePtr& parent, const CallLogPtr& log)
{
    std::vector<VxHWModulePtr> members;
    for (std::int32_t index = 1; index <= parent->placeCount; ++index) {
        auto member = CopyFakeModule(*parent, log);
        member->placeCount = 0;
        member->indexInParent = index;
        member->parent = parent;
        members.push_back(member);
    }
    return members;
}

} // namespace zqbchwcx::testing
