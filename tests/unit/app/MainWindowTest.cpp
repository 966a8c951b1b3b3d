#include "tests/unit/app/WindowStage.h"

#include "app/dialogs/NewStationDialog.h"
#include "app/document/JournalDirectory.h"
#include "app/window/ConfigurationView.h"
#include "app/window/MainWindow.h"
#include "app/window/ModuleInserter.h"
#include "app/window/Notice.h"
#include "zqbchwcx/controllers/interfaces/IVxHWDragDropController.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/qt/RackOverviewRIOWidget.h"
#include "zqbchwcx/qt/RackOverviewWidget.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QDropEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QStatusBar>
#include <QTableView>
#include <QThread>
#include <QTimer>

#include <gmock/gmock.h>

namespace quillon_ed {
namespace {

using zqbchwcx::reference::Language;

using MainWindowTest = testing::WindowStage;

TEST_F(MainWindowTest, OffersOnlyWhatCanBeDone)
{
    for (const char* text : {"Save", "Undo", "Cut", "Copy", "Paste", "Delete", "Print…"})
        EXPECT_FALSE(IsEnabled(text)) << text;
    EXPECT_TRUE(IsEnabled("New station…"));
    Open();
    for (const char* text : {"Cut", "Copy", "Delete", "Parameters…", "Print…"}) EXPECT_TRUE(IsEnabled(text)) << text;
    EXPECT_FALSE(IsEnabled("Undo"));
    Action("Delete")->trigger();
    EXPECT_TRUE(IsEnabled("Undo delete"));
    EXPECT_FALSE(IsEnabled("Delete")) << "the selected place is empty now";
    EXPECT_TRUE(window->isWindowModified());
    Action("Undo delete")->trigger();
    EXPECT_TRUE(IsEnabled("Redo delete"));
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(MainWindowTest, MakesNewStationsOfEveryKindReadyForTheirHeads)
{
    const char* firstModules[] = {"Q3-PS02-A", "QT-HD10-A", "QA-HD10-A"};
    for (int kind = 0; kind < 3; ++kind) {
        SCOPED_TRACE(kind);
        QTimer chooser;
        QObject::connect(&chooser, &QTimer::timeout, &chooser, [&] {
            auto* dialog = qobject_cast<NewStationDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            chooser.stop();
            dialog->findChild<QComboBox*>()->setCurrentIndex(kind);
            dialog->accept();
        });
        chooser.start(1);
        Action("New station…")->trigger();
        Document& document = *window->Files().Current();
        auto& view = *window->findChild<ConfigurationView*>();
        EXPECT_EQ(document.Station()->StationKind(), kind);
        EXPECT_EQ(view.findChild<zqbchwcx::qt::RackOverviewRIOWidget*>() != nullptr, kind != 0);
        view.Handler()->FocusPosition(zqbchwcx::G_PlacePosition(0, 1));
        for (int other = 0; other < 3; ++other)
            EXPECT_EQ(InsertModule(services, document, view, QString::fromLatin1(firstModules[other])).isEmpty(),
                      other == kind);
        document.History().Undo();
    }
}

TEST_F(MainWindowTest, WhatIsGreyInAnOnlineStationIsRefusedByKeysToo)
{
    Open(":/examples/district-heating-online.station.json");
    auto* view = window->findChild<ConfigurationView*>();
    zqbchwcx::reference::Station& station = *window->Files().Current()->Station();
    for (const char* text : {"Cut", "Copy", "Paste", "Delete"}) EXPECT_FALSE(IsEnabled(text)) << text;
    const QString reason = QString::fromStdString(station.AgainstEditing()->text.en);
    QWidget* const views[] = {view->findChild<QTableView*>(),
                              view->findChild<zqbchwcx::qt::RackOverviewWidget*>()->focusProxy()};
    for (QWidget* shown : views) {
        for (const auto& [key, modifier] :
             {std::pair(Qt::Key_Delete, Qt::NoModifier), std::pair(Qt::Key_X, Qt::ControlModifier)}) {
            Told().clear();
            QKeyEvent press(QEvent::KeyPress, key, modifier);
            QCoreApplication::sendEvent(shown, &press);
            EXPECT_EQ(Told().text(), reason) << key;
        }
    }
    view->Manager().Delete();
    view->Manager().Cut();
    EXPECT_FALSE(view->Manager().SetSingleModuleToCurPos(station.CreateModule("Q3-DI16-A")));
    const auto drag = view->DragDropController();
    EXPECT_FALSE(drag->IsValidDragPosition(zqbchwcx::G_PlacePosition(0, 4)));
    EXPECT_FALSE(window->isWindowModified());
}

TEST_F(MainWindowTest, PasteFollowsTheClipboardAndSaysWhyNot)
{
    Open();
    auto* view = window->findChild<ConfigurationView*>();
    view->Handler()->FocusPosition(zqbchwcx::G_PlacePosition(0, 4));
    Action("Select all of the rack")->trigger();
    Action("Copy")->trigger();
    QCoreApplication::processEvents();
    Action("Paste")->trigger();
    EXPECT_THAT(Told().text().toStdString(), ::testing::HasSubstr("place 4 of rack 0"));
    EXPECT_FALSE(window->isWindowModified());
    Action("Delete")->trigger();
    view->Handler()->FocusPosition(zqbchwcx::G_PlacePosition(0, 1));
    EXPECT_TRUE(IsEnabled("Paste"));
    Action("Paste")->trigger();
    EXPECT_TRUE(IsEnabled("Undo paste"));
}

TEST_F(MainWindowTest, ActionsChangeOnlyWhenTheirStateDoes)
{
    Open();
    auto* view = window->findChild<ConfigurationView*>();
    Action("Copy")->trigger();
    Action("Delete")->trigger();
    Action("Undo delete")->trigger();
    QCoreApplication::processEvents();
    view->Handler()->FocusPosition(zqbchwcx::G_PlacePosition(0, 4));
    QStringList changed;
    const QObject watch;
    for (auto* menu : window->findChildren<QMenu*>())
        for (auto* action : menu->actions())
            QObject::connect(action, &QAction::changed, &watch, [&, action] { changed << action->text(); });
    for (const std::int32_t place : {5, 11, 1}) view->Handler()->FocusPosition(zqbchwcx::G_PlacePosition(0, place));
    EXPECT_EQ(changed.join(u' ').toStdString(), "");
}

TEST_F(MainWindowTest, SpeaksTheLanguageThatIsChosenWhileItRuns)
{
    Open();
    Action("Delete")->trigger();
    Action("Deutsch")->trigger();
    QCoreApplication::processEvents();
    EXPECT_TRUE(IsEnabled("Speichern"));
    EXPECT_EQ(window->menuBar()->actions().front()->text(), QStringLiteral("&Datei"));
    EXPECT_TRUE(StatusTexts().contains(QStringLiteral("Träger 0 · Platz 1 · leer")));
    EXPECT_TRUE(StatusTexts().contains(QStringLiteral("1 Platz ausgewählt")));
    EXPECT_EQ(window->findChild<QDockWidget*>(QStringLiteral("catalogueDock"))->windowTitle(),
              QStringLiteral("Katalog"));
    EXPECT_EQ(window->findChild<QWidget*>(QStringLiteral("rackOverview"))->accessibleName(),
              QStringLiteral("Trägerübersicht"));
    for (const QAction* menu : window->menuBar()->actions())
        for (const QAction* action : menu->menu()->actions())
            EXPECT_TRUE(action->isSeparator() || action->text().contains(u'&')) << action->text().toStdString();
    Action("English")->trigger();
    QCoreApplication::processEvents();
    EXPECT_TRUE(StatusTexts().contains(QStringLiteral("1 place selected")));
}

TEST_F(MainWindowTest, OpensItsStationWhenItHasBeenPainted)
{
    const QString path = Path("first.station.json");
    OpenExample()->Save(path);
    window->Start(path);
    EXPECT_FALSE(window->Files().Current()) << "the window comes first";
    for (int turn = 0; turn < 100 && !window->Files().Current(); ++turn) QCoreApplication::processEvents();
    ASSERT_TRUE(window->Files().Current());
    EXPECT_EQ(window->Files().Current()->FileName(), path);
    EXPECT_TRUE(window->findChild<ConfigurationView*>()->isVisible());
}

TEST_F(MainWindowTest, ComesBackAsItWasLeft)
{
    const auto dock = [&] { return window->findChild<QDockWidget*>(QStringLiteral("catalogueDock")); };
    const auto restart = [&] {
        EXPECT_TRUE(window->close());
        window = std::make_unique<MainWindow>(services);
        EXPECT_TRUE(window->isVisible());
        QCoreApplication::processEvents();
    };
    QCoreApplication::processEvents();
    const QSize size(1400, 610);
    window->resize(size);
    window->resizeDocks({dock()}, {400}, Qt::Horizontal);
    restart();
    EXPECT_EQ(window->size(), size);
    EXPECT_EQ(dock()->width(), 400);
    Action("Catalogue")->trigger();
    restart();
    EXPECT_FALSE(Action("Catalogue")->isChecked());
    EXPECT_TRUE(Action("Toolbar")->isChecked());
    EXPECT_FALSE(Action("Messages")->isChecked()) << "they come when there is one";
}

TEST_F(MainWindowTest, OpensAFileThatIsDroppedAnywhereOnIt)
{
    const QString path = Path("dropped.station.json");
    OpenExample()->Save(path);
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(path)});
    Open(":/examples/packaging-line.station.json");
    QWidget* view = window->findChild<ConfigurationView*>();
    QDragEnterEvent enter(QPoint(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(QPointF(10, 10), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(view, &enter);
    QCoreApplication::sendEvent(view, &drop);
    EXPECT_TRUE(enter.isAccepted() && drop.isAccepted());
    EXPECT_TRUE(window->Files().Current()->FileName().isEmpty()) << "the drop has to end first";
    for (int turn = 0; turn < 10; ++turn) QCoreApplication::processEvents();
    EXPECT_EQ(window->Files().Current()->FileName(), path);
}

TEST_F(MainWindowTest, ReloadsWhateverAnotherProgramHasPutIntoTheFile)
{
    const QString path = Path("shared.station.json");
    const auto write = [&](const char* example) { WriteFile(path, ReadWhole(QString::fromLatin1(example))); };
    write(":/examples/packaging-line.station.json");
    ASSERT_TRUE(window->Files().OpenFile(path));
    const auto handler = [&] { return window->findChild<ConfigurationView*>()->Handler(); };
    const auto reload = [&] {
        Answer("Reload");
        window->Files().CheckFile();
        QCoreApplication::processEvents();
    };
    handler()->FocusPosition(zqbchwcx::G_PlacePosition(3, 5));
    Action("Select all of the rack")->trigger();

    write(testing::Waterworks);
    reload();
    EXPECT_EQ(handler()->FocusPosition(), zqbchwcx::G_PlacePosition(0, 1)) << "rack 3 is gone";
    handler()->FocusPosition(zqbchwcx::G_PlacePosition(0, 4));
    write(":/examples/packaging-line.station.json");
    reload();
    EXPECT_EQ(handler()->FocusPosition(), zqbchwcx::G_PlacePosition(0, 4));
    handler()->FocusPosition(zqbchwcx::G_PlacePosition(3, 5));
    Action("Select all of the rack")->trigger();
    EXPECT_TRUE(StatusTexts().contains(QStringLiteral("11 places selected"))) << StatusTexts().join(u'|').toStdString();
    Action("Delete")->trigger();
    EXPECT_TRUE(IsEnabled("Undo delete"));

    WriteFile(path, "{");
    Answer("Reload");
    Answer("Close");
    window->Files().CheckFile();
    EXPECT_TRUE(IsEnabled("Undo delete")) << "a damaged file takes nothing away";
    write(":/examples/sewage-aeration.station.json");
    reload();
    EXPECT_FALSE(IsEnabled("Delete")) << "it is read-only";
    write(":/examples/assembly-cell.station.json");
    reload();
    EXPECT_FALSE(window->findChild<QWidget*>(QStringLiteral("rackOverview"))) << "a distributed station";
    EXPECT_TRUE(window->findChild<QWidget*>(QStringLiteral("rackOverviewRIO")));
}

TEST_F(MainWindowTest, AskedBeforeAFileThatCameBackIsOverwritten)
{
    const QString path = Path("gone.station.json");
    WriteFile(path, ReadWhole(QString::fromLatin1(testing::Waterworks)));
    ASSERT_TRUE(window->Files().OpenFile(path));
    QFile::remove(path);
    Answer("Keep mine");
    window->Files().CheckFile();
    EXPECT_TRUE(window->isWindowModified());
    const QByteArray foreign = ReadWhole(QStringLiteral(":/examples/packaging-line.station.json"));
    WriteFile(path, foreign);
    Answer("Cancel");
    EXPECT_FALSE(window->Files().Save());
    EXPECT_EQ(ReadWhole(path), foreign);
}

TEST_F(MainWindowTest, SavingElsewhereWhileClosingCloses)
{
    const QString path = Path("shared.station.json");
    const QString copy = Path("copy.station.json");
    WriteFile(path, ReadWhole(QString::fromLatin1(testing::Waterworks)));
    ASSERT_TRUE(window->Files().OpenFile(path));
    Action("Delete")->trigger();
    WriteFile(path, ReadWhole(QStringLiteral(":/examples/packaging-line.station.json")));
    Answer("Save");
    Answer("Save as…");
    SaveAs(copy);
    EXPECT_TRUE(window->Files().Close());
    EXPECT_TRUE(QFile::exists(copy));
    EXPECT_FALSE(window->Files().Current());
}

TEST_F(MainWindowTest, ProposesTheLastFolderOrElseOneThatExists)
{
    const QByteArray home = qgetenv("HOME");
    qputenv("HOME", folder.path().toLocal8Bit()); // without a folder for documents
    const QString used = Path("used");
    const auto proposed = [&](const QString& savedIn) {
        Open();
        QString proposal;
        SaveAs(savedIn + QStringLiteral("/new.station.json"), &proposal);
        QFile::remove(savedIn + QStringLiteral("/new.station.json"));
        EXPECT_TRUE(window->Files().Save());
        return proposal;
    };
    ASSERT_TRUE(QDir().mkdir(used));
    EXPECT_EQ(proposed(used), folder.path());
    EXPECT_EQ(proposed(used), used);
    QDir(used).removeRecursively();
    EXPECT_EQ(proposed(folder.path()), folder.path());
    qputenv("HOME", home);
}

TEST_F(MainWindowTest, ClosesItsMenuBeforeItself)
{
    Open();
    auto* overview = window->findChild<QWidget*>(QStringLiteral("rackOverview"));
    QCoreApplication::processEvents();
    bool wasOpen = false;
    QTimer::singleShot(100, window.get(), [&] {
        wasOpen = QApplication::activePopupWidget() != nullptr;
        window->close();
    });
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Menu, Qt::NoModifier);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Menu, Qt::NoModifier);
    QWidget* keys = overview->focusProxy() ? overview->focusProxy() : overview;
    QCoreApplication::sendEvent(keys, &press);
    QCoreApplication::sendEvent(keys, &release);
    EXPECT_TRUE(wasOpen);
    for (int turn = 0; turn < 10; ++turn) QCoreApplication::processEvents();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(MainWindowTest, WhatIsUnsavedStaysInTheJournalUntilTheStationIsLeft)
{
    const auto journals = [] {
        const QDir state(QString::fromStdString(JournalDirectory()));
        return state.entryList({QStringLiteral("*.journal")}, QDir::Files).size();
    };
    const auto before = journals();
    Open();
    Action("Delete")->trigger();
    for (int turn = 0; turn < 500 && journals() == before; ++turn) {
        QThread::msleep(20);
        QCoreApplication::processEvents();
    }
    ASSERT_EQ(journals(), before + 1);
    WriteFile(Path("bad.station.json"), "{");
    Answer("Discard");
    Answer("Close");
    EXPECT_FALSE(window->Files().OpenFile(Path("bad.station.json")));
    EXPECT_TRUE(window->isWindowModified());
    EXPECT_EQ(journals(), before + 1) << "it is still open, and still unsaved";
    Answer("Discard");
    EXPECT_TRUE(window->Files().Close());
    EXPECT_EQ(journals(), before);
}

TEST_F(MainWindowTest, AReadOnlyStationOffersNoChange)
{
    Open(":/examples/sewage-aeration.station.json");
    for (const char* text : {"Cut", "Paste", "Delete"}) EXPECT_FALSE(IsEnabled(text));
    EXPECT_TRUE(StatusTexts().contains(QStringLiteral("Read-only")));
}

} // namespace
} // namespace quillon_ed
