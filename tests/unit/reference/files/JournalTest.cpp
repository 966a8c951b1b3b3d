#include "zqbchwcx/reference/files/Journal.h"

#include "tests/support/Samples.h"
#include "tests/unit/reference/files/FaultyFiles.h"
#include "tests/unit/reference/files/TemporaryDirectory.h"
#include "zqbchwcx/reference/files/Recovery.h"
#include "zqbchwcx/reference/files/StationWriter.h"

#include <gmock/gmock.h>

#include <sys/wait.h>
#include <unistd.h>

namespace zqbchwcx::reference {
namespace {

using namespace ::testing;

const JournalOrigin Origin{"plants/wells.station.json", FileStamp{1234, -5, 0xFEDCBA9876543210U}};

TEST(Journal, GivesBackTheUnsavedStationOfAProgramThatDied)
{
    const TemporaryDirectory directory;
    const std::string journals = directory.File("state/journals");
    const StationData newest = FullStation(2, 5);
    const pid_t child = ::fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        Journal journal(journals);
        journal.Write(FullStation(1, 1), Origin);
        journal.Write(newest, Origin);
        ::kill(::getpid(), SIGKILL);
    }
    ::waitpid(child, nullptr, 0);

    const auto found = FindRecoverable(journals);
    ASSERT_THAT(found, SizeIs(1));
    EXPECT_EQ(found[0].origin, Origin);
    EXPECT_EQ(found[0].damage, std::nullopt);
    EXPECT_GT(found[0].writtenNanoseconds, 0);
    const RecoveredStation recovered = Recover(found[0].journalFile, ShippedCatalogue());
    EXPECT_TRUE(SameStation(recovered.data, newest));
    EXPECT_EQ(recovered.origin, Origin);

    // Nothing is lost before it is dropped; the next document takes another name.
    const Journal next(journals);
    EXPECT_NE(next.FileName(), found[0].journalFile);
    EXPECT_THAT(FindRecoverable(journals), SizeIs(1));
    DropJournal(found[0].journalFile);
    EXPECT_THAT(FindRecoverable(journals), IsEmpty());
}

TEST(Journal, BelongsToItsProgramWhileThatRuns)
{
    const TemporaryDirectory directory;
    Journal one(directory.Path());
    Journal two(directory.Path());
    EXPECT_NE(one.FileName(), two.FileName());
    one.Write(FullStation(1, 1), {});
    EXPECT_THAT(FindRecoverable(directory.Path()), IsEmpty());
    EXPECT_THAT(ErrorOf([&] { DropJournal(one.FileName()); }).reason, HasSubstr("running"));
    one.Discard();
    one.Discard();
    EXPECT_FALSE(std::filesystem::exists(one.FileName()));
    EXPECT_THAT(FindRecoverable(directory.File("missing")), IsEmpty());
}

TEST(Journal, RefusesEveryCutOffAndDamagedContent)
{
    const TemporaryDirectory directory;
    std::string fileName;
    {
        Journal journal(directory.Path());
        journal.Write(FullStation(1, 2), Origin);
        fileName = FileNameOf(journal.FileName());
    }
    const std::string whole = directory.Read(fileName);
    const auto reasonFor = [&](const std::string& content) {
        directory.Write(fileName, content);
        const auto found = FindRecoverable(directory.Path());
        EXPECT_EQ(directory.Read(fileName), content) << "looking must not change anything";
        EXPECT_EQ(ErrorOf([&] { Recover(directory.File(fileName), ShippedCatalogue()); }).reason == "no error",
                  !found.at(0).damage.has_value());
        return found.at(0).damage.value_or("");
    };
    EXPECT_EQ(reasonFor(whole), "");
    for (std::size_t length = 0; length < whole.size(); length += 13)
        EXPECT_NE(reasonFor(whole.substr(0, length)), "") << length;
    EXPECT_THAT(reasonFor(whole.substr(0, whole.size() - 1)), HasSubstr("cut off"));
    std::string changed = whole;
    changed[changed.find("Comment")] = 'X';
    EXPECT_THAT(reasonFor(changed), HasSubstr("damaged"));
    EXPECT_THAT(reasonFor(whole + " "), HasSubstr("/bytes"));
}

TEST(Journal, KeepsItsContentWhicheverCallFails)
{
    bool survived = false;
    for (int call = 1; !survived; ++call) {
        const TemporaryDirectory directory;
        Journal(directory.Path()).Write(FullStation(1, 1), Origin);
        FaultyFiles files(call);
        ErrorOf([&] {
            Journal journal(directory.Path(), files);
            journal.Write(FullStation(1, 2), Origin);
            journal.Write(FullStation(1, 3), Origin);
            journal.Discard();
        });
        const auto found = FindRecoverable(directory.Path());
        EXPECT_FALSE(found.empty()) << "the older journal must stay";
        for (const RecoverableJournal& journal : found) EXPECT_EQ(journal.damage, std::nullopt) << call;
        survived = files.Calls() < call;
    }
}

} // namespace
} // namespace zqbchwcx::reference
