#pragma once

#include "foundation/VxError.h"
#include "foundation/model/VxHWModule.h"
#include "foundation/model/VxHWModules.h"
#include "tests/support/services/CallLog.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace zqbchwcx::testing {

class FakeModules : public VxHWModules {
public:
    explicit FakeModules(CallLogPtr log) : moLog(std::move(log)) {}

    VxHWModulePtr Item(std::int32_t lIndex) const override
    {
        moLog->Call("VxHWModules.Item");
        if (lIndex < 0 || lIndex >= static_cast<std::int32_t>(modules.size()))
            throw VxError(vxErrorSubscript, "There is no module " + std::to_string(lIndex));
        return modules[static_cast<std::size_t>(lIndex)];
    }
    std::int32_t Count() const override
    {
        moLog->Call("VxHWModules.Count");
        return static_cast<std::int32_t>(modules.size());
    }
    void Add(const VxHWModulePtr& oModule, bool bFlag) override
    {
        moLog->Call("VxHWModules.Add");
        if (!bFlag) throw VxError(vxErrorInvalidArgument, "Modules are always added with True");
        modules.push_back(oModule);
    }
    void Clear() override
    {
        moLog->Call("VxHWModules.Clear");
        modules.clear();
    }
    /// One line per module; see `FakeConfigText.h`.
    std::string ConfigText() const override;
    bool Contains(const VxHWModulePtr& oModule) const override
    {
        moLog->Call("VxHWModules.Contains");
        return std::find(modules.begin(), modules.end(), oModule) != modules.end();
    }

    std::vector<VxHWModulePtr> modules;

private:
    CallLogPtr moLog;
};

} // namespace zqbchwcx::testing
