#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/files/FileSystem.h"
#include "zqbchwcx/reference/files/JournalEntry.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// A journal whose program ended without saving.
struct RecoverableJournal {
    std::string journalFile;
    JournalOrigin origin;
    std::int64_t writtenNanoseconds = 0; ///< when it was written, since 1970-01-01 UTC
    std::optional<std::string> damage;   ///< why it cannot be recovered
};

struct RecoveredStation {
    StationData data;
    JournalOrigin origin;
};

/// The journals of a directory that no running program owns, damaged ones included. Changes nothing. Throws FileError
/// when the directory cannot be read.
std::vector<RecoverableJournal> FindRecoverable(const std::string& directory, FileSystem& files = SystemFiles());

/// The unsaved station of a journal. Changes nothing: the journal is dropped by `DropJournal` when the station is
/// safe elsewhere. Throws FileError with the reason for a journal that is cut off or damaged.
RecoveredStation Recover(const std::string& journalFile, const Catalogue& catalogue, FileSystem& files = SystemFiles());

/// Removes a journal that nobody owns. Throws FileError; a journal that is gone or has an owner by now is refused.
void DropJournal(const std::string& journalFile, FileSystem& files = SystemFiles());

} // namespace zqbchwcx::reference
