#pragma once

#include "zqbchwcx/foundation/model/VxHWModelFactory.h"
#include "zqbchwcx/reference/model/contract/ModelContext.h"

namespace zqbchwcx::reference {

/// Makes the free-standing objects of the model.
class ModelFactory : public VxHWModelFactory {
public:
    explicit ModelFactory(ModelContextPtr oContext);

    VxHWRackPlacesPtr CreateRackPlaces() override;
    VxHWModulesPtr CreateModules() override;
    VxHWModulePtr CreateModule() override;

private:
    ModelContextPtr moContext;
};

} // namespace zqbchwcx::reference
