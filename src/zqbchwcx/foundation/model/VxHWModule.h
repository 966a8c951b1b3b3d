#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace zqbchwcx {

/// A module, or the empty-module object that an empty place carries.
class VxHWModule {
public:
    virtual ~VxHWModule() = default;

    virtual bool IsEmpty() const = 0;
    virtual std::string OrderNumber() const = 0;
    /// A further description.
    virtual std::string DetailText() const = 0;
    virtual std::string Name() const = 0;
    /// A built-in image key beginning with "IDB_", or a file name without extension in the picture directory.
    virtual std::string PictureName() const = 0;
    /// Places that the module spans; less than 1 for a module of a single place.
    virtual std::int32_t PlaceCount() const = 0;
    virtual std::int32_t SubModuleCount() const = 0;
    /// 1-based position within the parent module's places; 0 without a parent.
    virtual std::int32_t IndexInParent() const = 0;
    /// Null without a parent, and only then: asked when `IndexInParent` is not 0.
    virtual VxHWModulePtr ParentModule() const = 0;
    /// Empty without sub-modules, never null.
    virtual VxHWModulesPtr SubModules() const = 0;
    virtual bool HasParamDialog() const = 0;
    /// As a reader sees them ("0..3"); empty for none.
    virtual std::string InputAddressText() const = 0;
    virtual std::string OutputAddressText() const = 0;
    virtual std::string BasicAddressText() const = 0;
    /// Names are in upper case; asked when `HasAttribute` is True.
    virtual std::string GetAttribute(std::string_view name) const = 0;
    virtual bool HasAttribute(std::string_view name) const = 0;
};

} // namespace zqbchwcx
