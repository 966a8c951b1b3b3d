#include "zqbchwcx/reference/files/AtomicWrite.h"

#include "tests/support/Samples.h"
#include "tests/unit/reference/files/FaultyFiles.h"
#include "tests/unit/reference/files/TemporaryDirectory.h"
#include "zqbchwcx/reference/files/StationWriter.h"

#include <gmock/gmock.h>

#include <chrono>
#include <csignal>
#include <random>
#include <thread>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zqbchwcx::reference {
namespace {

namespace fs = std::filesystem;
using ::testing::AnyOf;
using ::testing::HasSubstr;

const std::string OldContent(2500, 'o');
const std::string NewContent(3500, 'n');

class FailingWrite : public ::testing::TestWithParam<FaultyFiles::Fault> {};

TEST_P(FailingWrite, LeavesOldOrNewContentAtEveryCall)
{
    int failures = 0;
    bool survived = false;
    for (int call = 1; !survived; ++call) {
        SCOPED_TRACE(call);
        const TemporaryDirectory directory;
        directory.Write("plant.json", OldContent);
        FaultyFiles files(call, GetParam());
        const FileError error = ErrorOf([&] { AtomicWrite(files, directory.File("plant.json"), NewContent); });
        const std::string content = directory.Read("plant.json");
        EXPECT_THAT(content, AnyOf(OldContent, NewContent));
        const bool isDead = GetParam() == FaultyFiles::Fault::Dead;
        EXPECT_TRUE(isDead || directory.FileCount() == 1) << "a temporary file was left behind";
        // What a dead program left does not stand in the way of the next one, which clears it away.
        AtomicWrite(SystemFiles(), directory.File("plant.json"), NewContent);
        EXPECT_EQ(directory.Read("plant.json"), NewContent);
        EXPECT_EQ(directory.FileCount(), 1U);
        survived = files.Calls() < call;
        // Nobody is told any more that the directory could not be closed.
        if (error.reason == "no error") continue;
        ++failures;
        EXPECT_EQ(error.fileName, directory.File("plant.json"));
        EXPECT_THAT(error.reason, HasSubstr("No space left"));
        EXPECT_THAT(error.Reason(Language::German), HasSubstr("kein Platz mehr; der "));
        EXPECT_THAT(error.reason, HasSubstr(content == OldContent ? "old content is unchanged" : "new content is in"));
    }
    EXPECT_GE(failures, 10);
}

INSTANTIATE_TEST_SUITE_P(AtomicWrite, FailingWrite,
                         ::testing::Values(FaultyFiles::Fault::FailOnce, FaultyFiles::Fault::Dead));

TEST(AtomicWrite, FlushesTheContentBeforeTheNameAndTheNameAfterwards)
{
    const TemporaryDirectory directory;
    FaultyFiles files;
    AtomicWrite(files, directory.File("plant.json"), NewContent);
    EXPECT_EQ(files.Steps(), "write write write write flush rename flush ");
}

TEST(AtomicWrite, ClearsAwayOnlyWhatDeadProgramsLeft)
{
    const TemporaryDirectory directory;
    const std::vector<std::string> kept = {".plant.json.bak", ".plant.json.7-0.tmp.json", ".other.json.7-0.tmp",
                                           ".plant.json.note.tmp"};
    for (const std::string& name : kept) directory.Write(name, "kept");
    directory.Write(".plant.json.7-0.tmp", "of a dead program");
    const std::string running = directory.File(".plant.json.7-1.tmp");
    const OpenFile held(SystemFiles(), SystemFiles().CreateNew(running));
    AtomicWrite(SystemFiles(), directory.File("plant.json"), NewContent);
    EXPECT_FALSE(fs::exists(directory.File(".plant.json.7-0.tmp")));
    EXPECT_TRUE(fs::exists(running));
    EXPECT_EQ(directory.FileCount(), kept.size() + 2);
}

TEST(AtomicWrite, KeepsPermissionsAndFollowsLinks)
{
    const TemporaryDirectory directory;
    fs::create_directory(directory.File("real"));
    directory.Write("real/plant.json", OldContent);
    fs::permissions(directory.File("real/plant.json"), fs::perms(0640));
    fs::create_symlink("real/plant.json", directory.File("link.json"));
    AtomicWrite(SystemFiles(), directory.File("link.json"), NewContent);
    EXPECT_TRUE(fs::is_symlink(directory.File("link.json")));
    EXPECT_EQ(directory.Read("real/plant.json"), NewContent);
    EXPECT_EQ(fs::status(directory.File("real/plant.json")).permissions(), fs::perms(0640));

    fs::create_symlink("loop.json", directory.File("loop.json"));
    EXPECT_NE(ErrorOf([&] { AtomicWrite(SystemFiles(), directory.File("loop.json"), ""); }).reason, "no error");
    fs::create_symlink("real/later.json", directory.File("dangling.json"));
    AtomicWrite(SystemFiles(), directory.File("dangling.json"), NewContent);
    EXPECT_EQ(directory.Read("real/later.json"), NewContent);
}

TEST(AtomicWrite, RefusesProtectedAndImpossibleTargets)
{
    const TemporaryDirectory directory;
    directory.Write("plant.json", OldContent);
    fs::permissions(directory.File("plant.json"), fs::perms(0444));
    const auto reasonFor = [&](const std::string& name) {
        return ErrorOf([&] { AtomicWrite(SystemFiles(), directory.File(name), NewContent); }).reason;
    };
    EXPECT_THAT(reasonFor("plant.json"), HasSubstr("write-protected"));
    EXPECT_EQ(directory.Read("plant.json"), OldContent);
    EXPECT_THAT(reasonFor("."), HasSubstr("not a regular file"));
    EXPECT_THAT(reasonFor("no/such.json"), HasSubstr("No such file or directory"));
}

TEST(AtomicWrite, SurvivesAKilledProgramAHundredTimes)
{
    const TemporaryDirectory directory;
    const std::string file = directory.File("plant.station.json");
    const StationData small = FullStation(1, 4);
    const StationData large = FullStation(4, 60);
    SaveStation(small, file);
    std::mt19937 random(std::random_device{}());
    std::uniform_int_distribution<int> delay(0, 15'000);
    for (int i = 0; i < 100; ++i) {
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            for (;;) {
                SaveStation(large, file);
                SaveStation(small, file);
            }
        }
        std::this_thread::sleep_for(std::chrono::microseconds(delay(random)));
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const StationData found = LoadStation(file, ShippedCatalogue()).data;
        ASSERT_TRUE(SameStation(found, small) || SameStation(found, large)) << "after kill " << i;
    }
    SaveStation(small, file);
    EXPECT_EQ(directory.FileCount(), 1U);
}

} // namespace
} // namespace zqbchwcx::reference
