#pragma once

#include "foundation/VxError.h"

#include <string>

namespace zqbchwcx {

/// The object behind the pointer. Throws VxError, naming what is missing, when it is nothing.
template <class Pointer>
decltype(auto) G_Require(const Pointer& pointer, const char* what)
{
    if (!pointer) throw VxError(vxErrorNothing, std::string(what) + " is not set");
    return *pointer;
}

} // namespace zqbchwcx
