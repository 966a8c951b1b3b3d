#pragma once

#include <string>

namespace zqbchwcx::reference {

inline constexpr const char* JournalSuffix = ".journal";

/// The file whose lock the owner of a journal holds. It stays when the journal goes: removing a lock file would let
/// two programs lock two files of the same name.
inline std::string JournalLockName(const std::string& journalFile)
{
    return journalFile + ".lock";
}

} // namespace zqbchwcx::reference
