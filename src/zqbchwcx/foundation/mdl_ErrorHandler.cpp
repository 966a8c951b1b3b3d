#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"

#include <exception>
#include <new>
#include <string>

namespace zqbchwcx {
namespace {

VxError CurrentError()
{
    try {
        throw;
    } catch (const VxError& error) {
        return error;
    } catch (const std::bad_alloc&) {
        return {vxErrorOutOfMemory, "Out of memory"};
    } catch (const std::exception& error) {
        return {vxErrorUnexpected, error.what()};
    } catch (...) {
        return {vxErrorUnexpected, "Unexpected error"};
    }
}

} // namespace

void G_ReportError(VxError error, std::string_view moduleName, std::string_view procedureName)
{
    error.source = std::string(G_LibraryName).append(".").append(moduleName).append(".").append(procedureName);
    G_ServiceRoot().errorService->LogError(error.number, error.description, error.source, error.helpFile,
                                           error.helpContext);
}

void G_ReportCurrentException(std::string_view moduleName, std::string_view procedureName) noexcept
{
    if (procedureName.empty()) return;
    try {
        G_ReportError(CurrentError(), moduleName, procedureName);
    } catch (...) { // NOLINT(bugprone-empty-catch): there is nobody left to tell
    }
}

} // namespace zqbchwcx
