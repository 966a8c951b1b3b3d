#pragma once

#include <cstdint>
#include <exception>
#include <string>
#include <utility>

namespace zqbchwcx {

/// Error numbers that the library itself gives.
enum : std::int32_t {
    vxErrorInvalidArgument = 5,
    vxErrorOutOfMemory = 7,
    vxErrorSubscript = 9,
    vxErrorNothing = 91,       ///< an object that is needed is nothing
    vxErrorUnexpected = 32000, ///< an exception that is not a VxError
};

/// An error of the library, of its model or of a host service.
class VxError : public std::exception {
public:
    VxError(std::int32_t lNumber, std::string sDescription, std::string sSource = {}, std::string sHelpFile = {},
            std::int32_t lHelpContext = 0)
        : number(lNumber), description(std::move(sDescription)), source(std::move(sSource)),
          helpFile(std::move(sHelpFile)), helpContext(lHelpContext)
    {
    }

    const char* what() const noexcept override { return description.c_str(); }

    std::int32_t number;
    std::string description;
    std::string source;
    std::string helpFile;
    std::int32_t helpContext;
};

} // namespace zqbchwcx
