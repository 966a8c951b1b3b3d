#include "zqbchwcx/reference/files/Recovery.h"

#include "zqbchwcx/reference/files/JournalName.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/files/SystemFailure.h"

#include <system_error>

namespace zqbchwcx::reference {
namespace {

constexpr std::size_t LargestJournal = LargestStationFile + (std::size_t{1} << 20);

JournalEntry LoadEntry(FileSystem& files, const std::string& journalFile)
{
    return ParseJournalEntry(ReadFile(files, journalFile, LargestJournal), journalFile);
}

RecoverableJournal Describe(FileSystem& files, const std::string& journalFile)
{
    RecoverableJournal journal;
    journal.journalFile = journalFile;
    try {
        if (const auto status = ReadStatus(files, journalFile))
            journal.writtenNanoseconds = status->modifiedNanoseconds;
        journal.origin = LoadEntry(files, journalFile).origin;
    } catch (const FileError& error) {
        journal.damage = error.what();
    }
    return journal;
}

} // namespace

std::vector<RecoverableJournal> FindRecoverable(const std::string& directory, FileSystem& files)
{
    std::vector<RecoverableJournal> found;
    for (const std::string& name : ListFiles(files, directory)) {
        if (!name.ends_with(JournalSuffix)) continue;
        const std::string journalFile = std::string(directory).append("/").append(name);
        try {
            const auto lock = files.TryLock(JournalLockName(journalFile));
            if (!lock) continue;
            const OpenFile held(files, *lock);
            found.push_back(Describe(files, journalFile));
        } catch (const std::system_error& error) {
            throw SystemFailure(journalFile, {"cannot be locked", "kann nicht gesperrt werden"}, error);
        }
    }
    return found;
}

RecoveredStation Recover(const std::string& journalFile, const Catalogue& catalogue, FileSystem& files)
{
    const JournalEntry entry = LoadEntry(files, journalFile);
    return {ParseStation(entry.stationText, journalFile, catalogue), entry.origin};
}

void DropJournal(const std::string& journalFile, FileSystem& files)
{
    try {
        const auto lock = files.TryLock(JournalLockName(journalFile));
        if (!lock)
            throw FileError(journalFile, "", "belongs to a program that is running",
                            "gehört zu einem laufenden Programm");
        const OpenFile held(files, *lock);
        files.Remove(journalFile);
    } catch (const std::system_error& error) {
        throw SystemFailure(journalFile, {"cannot be removed", "kann nicht entfernt werden"}, error);
    }
}

} // namespace zqbchwcx::reference
