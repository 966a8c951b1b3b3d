#pragma once

#include "zqbchwcx/reference/files/FileSystem.h"
#include "zqbchwcx/reference/files/JournalEntry.h"

#include <memory>
#include <string>

namespace zqbchwcx::reference {

/// Keeps the newest state of one document that has unsaved changes, so that a program that is killed loses no more
/// than what changed since the last `Write`. Journals live in a directory of the user's own, not beside the stations:
/// they work for stations on read-only media and for those that were never saved.
///
/// A journal is owned through a lock, which ends with the program: a journal without an owner is one to recover.
class Journal {
public:
    /// Takes a free name in the directory, which is made when it is missing. Throws FileError.
    explicit Journal(const std::string& directory, FileSystem& files = SystemFiles());
    /// Leaves what was written and not discarded, to be recovered.
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// Replaces the content in one step. Throws FileError; the content is then the one before.
    void Write(const StationData& station, const JournalOrigin& origin);
    /// Nothing is unsaved any more. Throws FileError when the content cannot be removed.
    void Discard();

    const std::string& FileName() const { return msFileName; }

private:
    FileSystem& moFiles;
    std::string msFileName;
    std::unique_ptr<OpenFile> moLock;
};

} // namespace zqbchwcx::reference
