#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace zqbchwcx::reference {

/// A file, or a text in a file's format, that is refused: what, where and why. Nothing has been changed by then.
class FileError : public std::runtime_error {
public:
    /// The pointer is a JSON pointer (RFC 6901); empty when the whole file is meant or could not be read or written.
    FileError(std::string sFileName, std::string sPointer, std::string sReason)
        : std::runtime_error(sFileName + (sPointer.empty() ? "" : ": " + sPointer) + ": " + sReason),
          fileName(std::move(sFileName)), pointer(std::move(sPointer)), reason(std::move(sReason))
    {
    }

    std::string fileName;
    std::string pointer;
    std::string reason;
};

} // namespace zqbchwcx::reference
