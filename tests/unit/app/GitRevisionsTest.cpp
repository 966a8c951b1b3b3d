#include "app/document/GitRevisions.h"

#include "zqbchwcx/reference/json/FileError.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillon_ed {
namespace {

using zqbchwcx::reference::FileError;
using zqbchwcx::reference::Revision;

/// A real repository with one file below its root, whose name git could take for a pattern.
class GitRevisionsTest : public ::testing::Test {
protected:
    GitRevisionsTest()
    {
        Git({"init", "-q", "-b", "main"});
        Git({"config", "user.name", "Änne \x1f Author"});
        Git({"config", "user.email", "a@b.invalid"});
    }

    void Git(const QStringList& arguments)
    {
        QProcess git;
        git.setWorkingDirectory(mDirectory.path());
        git.start("git", arguments);
        EXPECT_TRUE(git.waitForFinished() && git.exitCode() == 0) << git.readAllStandardError().toStdString();
    }

    void Commit(const QByteArray& content, const QString& message)
    {
        QFile file(msFile);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        Git({"add", "--all"});
        Git({"commit", "-qm", message});
    }

    QTemporaryDir mDirectory;
    QString msFile = mDirectory.path() + "/:(top)* \"ä\".json";
    GitRevisions revisions;
};

TEST_F(GitRevisionsTest, TellsOfTheFileUnderEveryNameThatItHad)
{
    Commit("one two three four", "First\n\nand more");
    const QString before = msFile;
    msFile = mDirectory.filePath("renamed.json");
    EXPECT_TRUE(QFile::rename(before, msFile));
    Commit("one two three four", "Renamed");
    Git({"checkout", "-q", "-b", "side", "HEAD~1"});
    EXPECT_TRUE(QFile::exists(before));
    Git({"commit", "-q", "--allow-empty", "-m", "Nothing"});
    Git({"checkout", "-q", "main"});
    Git({"merge", "-q", "--no-ff", "-m", "Merged", "side"});
    Commit("one two three five", "\x1e Changed");

    const std::string file = msFile.toStdString();
    const std::vector<Revision> all = revisions.Of(file);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_EQ(all[0].message, "\x1e Changed");
    EXPECT_EQ(all[2].message, "First");
    EXPECT_EQ(all[2].author, "Änne \x1f Author");
    EXPECT_EQ(all[2].date.substr(0, 2), "20");
    EXPECT_EQ(revisions.Content(file, all[0]), "one two three five");
    EXPECT_EQ(revisions.Content(file, all[2]), "one two three four") << all[2].path;

    const Revision found = revisions.Find(file, "HEAD~1");
    EXPECT_EQ(found.message, "Merged");
    EXPECT_EQ(revisions.Content(file, found), "one two three four");
    EXPECT_TRUE(revisions.Of(mDirectory.filePath("never.json").toStdString()).empty());
}

TEST_F(GitRevisionsTest, SaysWhatGitSaid)
{
    Commit("content", "First");
    const auto reason = [&](const std::string& file, const std::string& name) -> std::string {
        try {
            return revisions.Content(file, revisions.Find(file, name));
        } catch (const FileError& error) {
            return error.reason;
        }
    };
    const std::string file = msFile.toStdString();
    for (const char* name : {"HEAD~1", "--version", "-1", "", "HEAD:."})
        EXPECT_TRUE(reason(file, name).starts_with("git: fatal: ")) << name << ": " << reason(file, name);
    EXPECT_TRUE(reason(mDirectory.filePath("other.json").toStdString(), "HEAD").starts_with("git: fatal: "));
    EXPECT_EQ(reason(mDirectory.filePath("missing/other.json").toStdString(), "HEAD"), "there is no such file");
}

} // namespace
} // namespace quillon_ed
