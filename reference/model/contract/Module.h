#pragma once

#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/reference/model/PlaceRef.h"
#include "zqbchwcx/reference/model/StationData.h"
#include "zqbchwcx/reference/model/contract/ModelContext.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx::reference {

/// What the handles of one module share: its members, if it spans several places, and the module as a whole.
struct ModuleBody {
    ModelContextPtr context;
    ModuleDataPtr data; ///< null for an empty module
    /// Where it stands: the station's identity and the place where it begins (an empty one: its place). Null and no
    /// place for a module that stands nowhere.
    const void* station = nullptr;
    PlaceRef firstPlace;
    std::int32_t subModule = 0;              ///< 1-based slot when it is a sub-module of the module there
    std::optional<std::int32_t> stationKind; ///< of that station, or of the one that it is meant for
};
using ModuleBodyPtr = std::shared_ptr<ModuleBody>;

/// A module as the contract shows it: a whole module, one of the members of a module that spans several places, a
/// sub-module, or the empty module of a place. A handle: it holds what the module was when it was asked for.
class Module : public VxHWModule {
public:
    explicit Module(ModuleBodyPtr oBody, std::int32_t lIndexInParent = 0);
    /// Throws VxError for a module of another model or for nothing.
    static const Module& Of(const VxHWModulePtr& oModule);

    const ModuleBodyPtr& Body() const { return moBody; }
    /// The place where the handle's part of the module stands; place 0 for a module that stands nowhere.
    PlaceRef Place() const;
    /// The same part of the same module: by its place, or, when it stands nowhere, by being the very one.
    bool IsSame(const Module& other) const;

    bool IsEmpty() const override { return !moBody->data; }
    std::string OrderNumber() const override;
    std::string DetailText() const override;
    std::string Name() const override;
    /// Empty, for the default picture, when the station's pictures have none: for a module of an unknown type, and for
    /// one of another kind of station.
    std::string PictureName() const override;
    std::int32_t PlaceCount() const override;
    std::int32_t SubModuleCount() const override;
    std::int32_t IndexInParent() const override { return mlIndexInParent; }
    VxHWModulePtr ParentModule() const override;
    VxHWModulesPtr SubModules() const override;
    bool HasParamDialog() const override;
    std::string InputAddressText() const override;
    std::string OutputAddressText() const override;
    std::string BasicAddressText() const override;
    std::string GetAttribute(std::string_view name) const override;
    bool HasAttribute(std::string_view name) const override;

private:
    const ModuleType* Type() const;
    /// Addresses and sub-modules are shown with the first member only.
    bool IsFirstPart() const { return mlIndexInParent <= 1; }

    ModuleBodyPtr moBody;
    std::int32_t mlIndexInParent;
};

/// The members of a module that spans several places, in order; of any other module, itself.
std::vector<VxHWModulePtr> MembersOf(const ModuleBodyPtr& oBody);

} // namespace zqbchwcx::reference
