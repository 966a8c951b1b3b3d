#pragma once

#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/reference/model/contract/ModelContext.h"
#include "zqbchwcx/reference/model/editing/Edit.h"

#include <vector>

namespace zqbchwcx::reference {

/// A free-standing collection of modules, one for each place that they fill. The flag of `Add` has no meaning here.
class Modules : public VxHWModules {
public:
    explicit Modules(ModelContextPtr oContext);
    /// The modules of the block, each with its members, as modules that stand nowhere yet and are meant for a station
    /// of the kind.
    Modules(ModelContextPtr oContext, const ModuleBlock& block, std::int32_t stationKind);

    VxHWModulePtr Item(std::int32_t lIndex) const override;
    std::int32_t Count() const override { return static_cast<std::int32_t>(mcolModules.size()); }
    void Add(const VxHWModulePtr& oModule, bool bFlag) override;
    void Clear() override { mcolModules.clear(); }
    /// Throws VxError for a module of another model.
    std::string ConfigText() const override;
    bool Contains(const VxHWModulePtr& oModule) const override;

private:
    ModelContextPtr moContext;
    std::vector<VxHWModulePtr> mcolModules;
};

/// The modules as a block. Any member stands for its whole module, which is taken once; modules that all stand
/// somewhere are taken in the order of their places. Throws VxError for nothing or a module of another model.
ModuleBlock BlockOf(const VxHWModules& modules);

} // namespace zqbchwcx::reference
