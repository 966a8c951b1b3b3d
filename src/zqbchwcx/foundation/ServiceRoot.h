#pragma once

#include "zqbchwcx/platform/HostServices.h"
#include "zqbchwcx/platform/Toolkit.h"

#include <functional>
#include <memory>
#include <string>

namespace zqbchwcx {

class VxHWModelFactory;

/// The host's shared services. Every member is set; a service that a host lacks is one that does nothing.
struct ServiceRoot {
    std::shared_ptr<Toolkit> toolkit;
    std::shared_ptr<SettingsReader> settingsReader;
    std::shared_ptr<TextManager> textManager;
    std::shared_ptr<ErrorService> errorService;
    std::shared_ptr<InstanceTracker> instanceTracker;
    std::shared_ptr<ObjectFactory> objectFactory;
    std::shared_ptr<VxHWModelFactory> modelFactory;
    /// The directory that the library was loaded from, without a separator at its end.
    std::string libraryDirectory;
};

using ServiceRootFactory = std::function<ServiceRoot()>;

/// Says how service roots are made. The host calls it before it creates any object of the library; the calling
/// thread's root, if there is one, is dropped and made anew on its next use.
void G_InstallServiceRoot(ServiceRootFactory factory);

/// The calling thread's service root, made on first use. Throws VxError when no factory is installed.
ServiceRoot& G_ServiceRoot();

} // namespace zqbchwcx
