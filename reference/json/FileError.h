#pragma once

#include "zqbchwcx/reference/catalogue/LocalizedText.h"

#include <stdexcept>
#include <string>
#include <utility>

namespace zqbchwcx::reference {

/// A file, or a text in a file's format, that is refused: what, where and why. Nothing has been changed by then.
class FileError : public std::runtime_error {
public:
    /// The pointer is a JSON pointer (RFC 6901); empty when the whole file is meant or could not be read or written.
    /// Without a German reason the English one stands in every language.
    FileError(std::string sFileName, std::string sPointer, std::string sReason, std::string sGermanReason = {})
        : std::runtime_error(Joined(sFileName, sPointer, sReason)), fileName(std::move(sFileName)),
          pointer(std::move(sPointer)), reason(std::move(sReason)), germanReason(std::move(sGermanReason))
    {
    }

    const std::string& Reason(Language language) const
    {
        return language == Language::German && !germanReason.empty() ? germanReason : reason;
    }
    /// "file: pointer: reason"; in English that is `what()`.
    std::string Message(Language language) const { return Joined(fileName, pointer, Reason(language)); }

    std::string fileName;
    std::string pointer;
    std::string reason; ///< in English
    std::string germanReason;

private:
    static std::string Joined(const std::string& fileName, const std::string& pointer, const std::string& reason)
    {
        return fileName + (pointer.empty() ? "" : ": " + pointer) + ": " + reason;
    }
};

} // namespace zqbchwcx::reference
