#pragma once

#include "zqbchwcx/foundation/ObjectPtr.h"
#include "zqbchwcx/foundation/VxError.h"

#include <memory>
#include <string>

namespace zqbchwcx {

/// The pointer itself. Throws VxError, naming what is missing, when it is nothing.
template <class Pointer>
const Pointer& G_Require(const Pointer& pointer, const char* what)
{
    if (!pointer) throw VxError(vxErrorNothing, std::string(what) + " is not set");
    return pointer;
}

/// The same for a shared object. The caller keeps it for the call: the call can make the host end the mode, which lets
/// go of everything.
template <class Object>
std::shared_ptr<Object> G_Require(const std::shared_ptr<Object>& pointer, const char* what)
{
    if (!pointer) throw VxError(vxErrorNothing, std::string(what) + " is not set");
    return pointer;
}

template <class Object>
ObjectPtr<Object> G_Require(const ObjectPtr<Object>& pointer, const char* what)
{
    if (!pointer) throw VxError(vxErrorNothing, std::string(what) + " is not set");
    return pointer;
}

} // namespace zqbchwcx
