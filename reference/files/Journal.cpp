#include "zqbchwcx/reference/files/Journal.h"

#include "zqbchwcx/reference/files/AtomicWrite.h"
#include "zqbchwcx/reference/files/JournalName.h"
#include "zqbchwcx/reference/files/StationWriter.h"
#include "zqbchwcx/reference/files/SystemFailure.h"

#include <system_error>

namespace zqbchwcx::reference {
namespace {

constexpr int MostJournals = 10'000;

} // namespace

Journal::Journal(const std::string& directory, FileSystem& files) : moFiles(files)
{
    try {
        files.CreateDirectories(directory);
        for (int number = 0; number < MostJournals; ++number) {
            const std::string fileName = directory + "/station-" + std::to_string(number) + JournalSuffix;
            const auto lock = files.TryLock(JournalLockName(fileName));
            if (!lock) continue;
            auto held = std::make_unique<OpenFile>(files, *lock);
            // What a program that died left under this name waits to be recovered.
            if (files.Status(fileName)) continue;
            msFileName = fileName;
            moLock = std::move(held);
            return;
        }
    } catch (const std::system_error& error) {
        throw SystemFailure(directory, {"no journal can be kept here", "hier kann kein Journal geführt werden"}, error);
    }
    throw FileError(directory, "", "there are too many journals", "es gibt zu viele Journale");
}

Journal::~Journal() = default;

void Journal::Write(const StationData& station, const JournalOrigin& origin)
{
    AtomicWrite(moFiles, msFileName, WriteJournalEntry({origin, WriteStation(station, msFileName)}));
}

void Journal::Discard()
{
    try {
        if (moFiles.Status(msFileName)) moFiles.Remove(msFileName);
    } catch (const std::system_error& error) {
        throw SystemFailure(msFileName, {"cannot be removed", "kann nicht entfernt werden"}, error);
    }
}

} // namespace zqbchwcx::reference
