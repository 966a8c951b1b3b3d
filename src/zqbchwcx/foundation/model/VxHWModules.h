#pragma once

#include "zqbchwcx/foundation/model/Collection.h"
#include "zqbchwcx/foundation/model/Fwd.h"

#include <cstdint>
#include <iterator>
#include <string>

namespace zqbchwcx {

/// A collection of modules, none of them null.
class VxHWModules {
public:
    virtual ~VxHWModules() = default;

    /// Index from 0. Throws outside the collection.
    virtual VxHWModulePtr Item(std::int32_t lIndex) const = 0;
    virtual std::int32_t Count() const = 0;
    /// Appends; the library always passes True as the flag, whose meaning is the model's.
    virtual void Add(const VxHWModulePtr& oModule, bool bFlag) = 0;
    virtual void Clear() = 0;
    /// The modules written as the text of the "VxHWConfigText" format.
    virtual std::string ConfigText() const = 0;
    virtual bool Contains(const VxHWModulePtr& oModule) const = 0;

    VxHWModulePtr Element(std::int32_t lIndex) const { return Item(lIndex); }
    CollectionIterator<VxHWModules> begin() const { return {*this, 0}; }
    std::default_sentinel_t end() const { return {}; }
};

} // namespace zqbchwcx
