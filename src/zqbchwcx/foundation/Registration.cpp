#include "zqbchwcx/foundation/Registration.h"

#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"

namespace zqbchwcx {

InstanceRegistration::InstanceRegistration(std::string_view className) noexcept : msClassName(className)
{
    mbRegistered = G_Trap(msClassName, "Class_Initialize", [&] {
        mlInstanceId = G_ServiceRoot().instanceTracker->Register(G_InstanceCategory, msClassName);
    });
}

InstanceRegistration::~InstanceRegistration()
{
    if (!mbRegistered) return;
    G_Trap(msClassName, "Class_Terminate",
           [&] { G_ServiceRoot().instanceTracker->Unregister(G_InstanceCategory, msClassName, mlInstanceId); });
}

TextModuleUse::TextModuleUse(std::string_view className) noexcept : msClassName(className)
{
    G_Trap(msClassName, "Class_Initialize",
           [&] { moTextModule = G_ServiceRoot().textManager->Open(G_TextModuleName); });
}

TextModuleUse::~TextModuleUse()
{
    if (!moTextModule) return;
    G_Trap(msClassName, "Class_Terminate", [&] {
        moTextModule.reset();
        G_ServiceRoot().textManager->Release(G_TextModuleName);
    });
}

TextModule& TextModuleUse::operator*() const
{
    if (!moTextModule) throw VxError(vxErrorNothing, "The text module is not open");
    return *moTextModule;
}

} // namespace zqbchwcx
