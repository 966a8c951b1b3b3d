#include "zqbchwcx/reference/model/contract/ModelFactory.h"

#include "zqbchwcx/reference/model/contract/Module.h"
#include "zqbchwcx/reference/model/contract/Modules.h"
#include "zqbchwcx/reference/model/contract/RackPlaces.h"

#include <memory>
#include <utility>

namespace zqbchwcx::reference {

ModelFactory::ModelFactory(ModelContextPtr oContext) : moContext(std::move(oContext)) {}

VxHWRackPlacesPtr ModelFactory::CreateRackPlaces()
{
    return std::make_shared<RackPlaces>();
}

VxHWModulesPtr ModelFactory::CreateModules()
{
    return std::make_shared<Modules>(moContext);
}

VxHWModulePtr ModelFactory::CreateModule()
{
    auto body = std::make_shared<ModuleBody>();
    body->context = moContext;
    return std::make_shared<Module>(std::move(body));
}

} // namespace zqbchwcx::reference
