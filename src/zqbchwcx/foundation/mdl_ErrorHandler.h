#pragma once

#include "zqbchwcx/foundation/VxError.h"

#include <string_view>
#include <utility>

namespace zqbchwcx {

/// Hands the error to the host's error log with the source "zqbchwcx.<module>.<procedure>".
void G_ReportError(VxError error, std::string_view moduleName, std::string_view procedureName);

/// Reports the exception being handled. An error log that fails loses the report, never the program.
void G_ReportCurrentException(std::string_view moduleName, std::string_view procedureName) noexcept;

/// The error trap of a procedure: runs the body; an error ends the body and is reported. Returns whether the body
/// ran to its end. The only place in the library that catches.
template <class Body>
bool G_Trap(std::string_view moduleName, std::string_view procedureName, Body&& body) noexcept
{
    try {
        std::forward<Body>(body)();
        return true;
    } catch (...) {
        G_ReportCurrentException(moduleName, procedureName);
        return false;
    }
}

/// The error trap of a procedure with a result: what the body returns, or the given value when it fails.
template <class Value, class Body>
Value G_TrapValue(std::string_view moduleName, std::string_view procedureName, Value valueOnError, Body&& body) noexcept
{
    G_Trap(moduleName, procedureName, [&] { valueOnError = std::forward<Body>(body)(); });
    return valueOnError;
}

/// Runs the body and forgets its error; for the few steps whose failure is an answer, not an error.
template <class Body>
bool G_IgnoreErrors(Body&& body) noexcept
{
    return G_Trap({}, {}, std::forward<Body>(body));
}

} // namespace zqbchwcx
