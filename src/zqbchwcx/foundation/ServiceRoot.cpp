#include "zqbchwcx/foundation/ServiceRoot.h"

#include "zqbchwcx/foundation/VxError.h"

#include <optional>
#include <utility>

namespace zqbchwcx {
namespace {

ServiceRootFactory& InstalledFactory()
{
    static ServiceRootFactory factory;
    return factory;
}

std::optional<ServiceRoot>& ThreadRoot()
{
    thread_local std::optional<ServiceRoot> root;
    return root;
}

} // namespace

void G_InstallServiceRoot(ServiceRootFactory factory)
{
    InstalledFactory() = std::move(factory);
    ThreadRoot().reset();
}

ServiceRoot& G_ServiceRoot()
{
    auto& root = ThreadRoot();
    if (!root) {
        if (!InstalledFactory()) throw VxError(vxErrorNothing, "No host services are installed");
        root = InstalledFactory()();
    }
    return *root;
}

} // namespace zqbchwcx
