#include "tests/unit/app/AppStage.h"

#include "app/document/AutoSave.h"
#include "app/document/NewStation.h"
#include "app/document/ProposedName.h"
#include "app/document/RecentFiles.h"
#include "tests/unit/reference/files/FaultyFiles.h"
#include "zqbchwcx/reference/files/Recovery.h"
#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/model/rules/CheckStation.h"

#include <QDir>

namespace quillon_ed {
namespace {

using namespace zqbchwcx::reference;

constexpr PlaceRef Input{0, 4};

class DocumentTest : public testing::AppStage {
protected:
    DocumentTest() : path(Path("station.station.json"))
    {
        OpenExample()->Save(path);
        document = OpenFile(path);
    }

    std::vector<RecoverableJournal> Left() { return FindRecoverable(JournalFolder()); }
    std::string JournalFolder() const { return Path("journals").toStdString(); }

    QString path;
    std::unique_ptr<Document> document;
};

TEST_F(DocumentTest, IsUnsavedFromAChangeUntilItIsSavedOrUndone)
{
    EXPECT_FALSE(document->IsModified());
    ASSERT_TRUE(SetComment(*document, Input, "new"));
    EXPECT_TRUE(document->IsModified());
    document->History().Undo();
    EXPECT_FALSE(document->IsModified());
    document->History().Redo();
    EXPECT_THROW(document->Save(Path("no such folder") + QStringLiteral("/a.station.json")), FileError);
    EXPECT_EQ(document->FileName(), path);
    EXPECT_TRUE(document->IsModified());
    document->Save(path);
    EXPECT_FALSE(document->IsModified());
    document->History().Undo();
    EXPECT_TRUE(document->IsModified()) << "the file has the change that was undone";
}

TEST_F(DocumentTest, AnyFailingCallOfASaveLeavesAWholeFileAndAStationThatCanBeSaved)
{
    const auto onDisk = [&] { return LoadStation(path.toStdString(), services.Catalogue()).data; };
    bool failed = true;
    for (int call = 1; failed; ++call) {
        FaultyFiles files(call);
        auto loaded = LoadStation(path.toStdString(), services.Catalogue());
        const StationData before = loaded.data;
        Document faulty(services.Context(), std::move(loaded.data), {path.toStdString(), loaded.stamp}, {}, files);
        ASSERT_TRUE(SetComment(faulty, Input, "changed before call " + std::to_string(call)));
        try {
            faulty.Save(path);
            failed = false;
            EXPECT_GT(call, 8) << "too few calls to have been a save";
        } catch (const FileError& error) {
            EXPECT_EQ(error.fileName, path.toStdString());
            EXPECT_TRUE(faulty.IsModified());
            EXPECT_TRUE(SameStation(onDisk(), before) || SameStation(onDisk(), faulty.Station()->Data()));
            EXPECT_EQ(faulty.FileChange(), FileChange::Unchanged) << "its own save is no change by another program";
            faulty.Save(path);
        }
        EXPECT_FALSE(faulty.IsModified());
        EXPECT_TRUE(SameStation(onDisk(), faulty.Station()->Data()));
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).filter(QStringLiteral(".tmp")).size(), 0);
    }
}

TEST_F(DocumentTest, NoticesWhatAnotherProgramDidToTheFile)
{
    QByteArray text = ReadWhole(path);
    WriteFile(path, text.replace("Waterworks", "Steelworks"));
    EXPECT_EQ(document->FileChange(), FileChange::Changed);
    SetComment(*document, Input, "mine");
    document->TakeOver(LoadStation(path.toStdString(), services.Catalogue()));
    EXPECT_EQ(document->FileChange(), FileChange::Unchanged);
    EXPECT_FALSE(document->IsModified() || document->History().CanUndo());
    EXPECT_EQ(document->Station()->Data().name.substr(0, 10), "Steelworks");

    WriteFile(path, text.replace("Steelworks", "Steamworks"));
    document->KeepOwnContent();
    EXPECT_EQ(document->FileChange(), FileChange::Unchanged) << "the same change is not told twice";
    EXPECT_TRUE(document->IsModified()) << "the file differs";

    QFile::remove(path);
    EXPECT_EQ(document->FileChange(), FileChange::Missing);
    document->KeepOwnContent();
    EXPECT_EQ(document->FileChange(), FileChange::Unchanged);

    document->TakeOver({document->Station()->Data(), {}});
    ASSERT_TRUE(QDir().mkdir(path));
    EXPECT_THROW(document->KeepOwnContent(), FileError);
    EXPECT_TRUE(document->IsModified());
    EXPECT_EQ(document->FileChange(), FileChange::Unchanged) << "what cannot be read is not told twice either";
}

TEST_F(DocumentTest, ProposesNamesThatAFileCanHave)
{
    EXPECT_EQ(ProposedName(*document, {}), path.chopped(QStringLiteral(".station.json").size()));
    StationData unsaved = document->Station()->Data();
    unsaved.name = "Hall 1/2: \"old\"";
    EXPECT_EQ(ProposedName(*MakeDocument(unsaved), QStringLiteral("/tmp")), QStringLiteral("/tmp/Hall 1-2- -old-"));
}

TEST_F(DocumentTest, AJournalHoldsWhatADyingProgramHadNotSaved)
{
    auto autoSave = std::make_unique<AutoSave>(*document, JournalFolder(), nullptr);
    autoSave->Flush();
    EXPECT_TRUE(Left().empty()) << "there is nothing unsaved";
    SetComment(*document, Input, "unsaved");
    autoSave->Flush();
    EXPECT_TRUE(Left().empty()) << "its program still lives";
    const StationData unsaved = document->Station()->Data();
    autoSave.reset();

    const auto left = Left();
    ASSERT_EQ(left.size(), 1u);
    EXPECT_EQ(left.front().origin.stationFile, path.toStdString());
    EXPECT_TRUE(SameStation(Recover(left.front().journalFile, services.Catalogue()).data, unsaved));
}

TEST_F(DocumentTest, AJournalEndsWithTheSaveOrTheUndoOfAllChanges)
{
    for (const bool save : {true, false}) {
        auto autoSave = std::make_unique<AutoSave>(*document, JournalFolder(), nullptr);
        SetComment(*document, Input, save ? "saved" : "undone");
        autoSave->Flush();
        if (save) document->Save(path);
        else document->History().Undo();
        autoSave.reset();
        EXPECT_TRUE(Left().empty());
    }
}

TEST_F(DocumentTest, AJournalThatCannotBeWrittenIsToldOnce)
{
    WriteFile(Path("journals"), "a file in the way");
    AutoSave autoSave(*document, JournalFolder(), nullptr);
    int told = 0;
    QObject::connect(&autoSave, &AutoSave::failed, [&] { ++told; });
    SetComment(*document, Input, "first");
    autoSave.Flush();
    SetComment(*document, Input, "second");
    autoSave.Flush();
    EXPECT_EQ(told, 1);
}

TEST_F(DocumentTest, NewStationsAreEmptyButInOrder)
{
    for (const std::int32_t kind : {0, 1, 2}) {
        const StationSize size = LargestNewStation(kind);
        const StationData station = MakeNewStation("new", kind, size);
        EXPECT_EQ(station.racks.size(), static_cast<std::size_t>(size.racks));
        EXPECT_TRUE(CheckStation(station, services.Catalogue()).empty());
        MakeDocument(station)->Save(path);
        EXPECT_TRUE(SameStation(LoadStation(path.toStdString(), services.Catalogue()).data, station));
    }
}

TEST_F(DocumentTest, RecentFilesKeepEachOnceLatestFirst)
{
    RecentFiles recent(settings, nullptr);
    for (int file = 0; file < RecentFiles::Capacity + 3; ++file) recent.Add(Path("f") + QString::number(file));
    recent.Add(Path("f5"));
    EXPECT_EQ(recent.Files().size(), RecentFiles::Capacity);
    EXPECT_EQ(recent.Files().front(), Path("f5"));
    EXPECT_EQ(recent.Files().count(Path("f5")), 1);
    recent.Remove(Path("f5"));
    EXPECT_EQ(RecentFiles(settings, nullptr).Files().front(), Path("f12")) << "kept in the settings";

    QStringList senseless(1000, Path("f"));
    senseless.prepend(QString(5000, u'x'));
    settings.setValue(QStringLiteral("RecentFiles"), senseless);
    EXPECT_EQ(recent.Files(), QStringList(RecentFiles::Capacity, Path("f")));
}

} // namespace
} // namespace quillon_ed
