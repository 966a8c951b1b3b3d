#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"

namespace zqbchwcx {

/// Makes the few model objects that the library creates itself.
class VxHWModelFactory {
public:
    virtual ~VxHWModelFactory() = default;

    /// A new empty free-standing collection.
    virtual VxHWRackPlacesPtr CreateRackPlaces() = 0;
    virtual VxHWModulesPtr CreateModules() = 0;
    /// A new empty module.
    virtual VxHWModulePtr CreateModule() = 0;
};

} // namespace zqbchwcx
