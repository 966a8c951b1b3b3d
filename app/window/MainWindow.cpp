#include "app/window/MainWindow.h"

#include "app/catalogue/CataloguePanel.h"
#include "app/dialogs/AboutDialog.h"
#include "app/dialogs/ShortcutsDialog.h"
#include "app/document/SharedView.h"
#include "app/host/PlainText.h"
#include "app/host/ScreenRoom.h"
#include "app/host/ShippedData.h"
#include "app/host/Strings.h"
#include "app/host/SvgIcon.h"
#include "app/window/AfterFirstPaint.h"
#include "app/window/DroppedFiles.h"
#include "app/window/EditParameters.h"
#include "app/window/ExportCommands.h"
#include "app/window/MessagesDock.h"
#include "app/window/ModuleInserter.h"
#include "app/window/StartPage.h"
#include "app/window/StationView.h"
#include "app/window/StatusLine.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/selection/EditCommands.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenu>
#include <QSettings>
#include <QStackedWidget>
#include <QTimer>
#include <QToolBar>

namespace quillon_ed {

using namespace zqbchwcx;
using reference::Language;

namespace {

constexpr char ClassName[] = "MainWindow";
constexpr qsizetype LongestMenuText = 60;
constexpr int CatalogueCharacters = 48; ///< names and order numbers are whole
const QString GeometryKey = QStringLiteral("Window/Geometry");
const QString StateKey = QStringLiteral("Window/State");

QString InSentence(const QString& step, Language language)
{
    return language == Language::English ? step.left(1).toLower() + step.mid(1) : step;
}

} // namespace

MainWindow::MainWindow(AppServices& services)
    : PaintedFrame(services.Settings().value(GeometryKey).toByteArray()), moServices(services),
      moRecentFiles(services.Settings(), nullptr),
      moFiles(
          services, moRecentFiles,
          [this](const reference::ModuleData& module, reference::PlaceRef place) {
              return EditParameters(moServices, *moFiles.Current()->Station(), module, place, this);
          },
          *this),
      moActions(*this), moPages(new QStackedWidget(this)),
      moStartPage(new StartPage(moActions.fileNew, moActions.fileOpen, this)),
      moCatalogueDock(new QDockWidget(tr("Catalogue"), this)), moStatusLine(new StatusLine(this))
{
    setObjectName(QStringLiteral("mainWindow"));
    setWindowIcon(SvgIcon(QStringLiteral("quillon-ed")));
    moPages->addWidget(new QWidget(moPages)); // before the start page or the first station
    moPages->addWidget(moStartPage);
    setCentralWidget(moPages);
    setStatusBar(moStatusLine);
    AddDocks();
    ConnectFileActions();
    ConnectEditActions();
    ConnectViewActions();
    moActions.ShowLanguage(services.CurrentLanguage());
    FillRecentMenu();
    FillExamples();
    // What is put into a window that is visible already shows when events are handled, and only what shows can get
    // its size back.
    QCoreApplication::sendPostedEvents();
    restoreState(services.Settings().value(StateKey).toByteArray());
    moMessages->hide();
    OpenDroppedFiles(*this, [this](const QString& file) { moFiles.OpenFile(file); });
    UpdateActions();
}

MainWindow::~MainWindow()
{
    CloseView();
}

void MainWindow::Start(const QString& file)
{
    AfterFirstPaint(*this, [this, file] {
        // Comes too while a message tells why the file cannot be opened.
        QTimer::singleShot(0, this, [this] {
            if (!moFiles.Current()) ShowDocument();
        });
        if (!file.isEmpty()) moFiles.OpenFile(file);
        moFiles.OfferRecovery(false);
    });
}

void MainWindow::Warn(const QString& text)
{
    moMessages->Add(text);
}

void MainWindow::AddDocks()
{
    moCatalogueDock->setObjectName(QStringLiteral("catalogueDock"));
    addDockWidget(Qt::RightDockWidgetArea, moCatalogueDock);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea); // so that messages take no height from the catalogue
    resizeDocks({moCatalogueDock}, {TextSize(*this, CatalogueCharacters, 1).width()}, Qt::Horizontal);

    moMessages = new MessagesDock(moServices.Errors(), this);
    addDockWidget(Qt::BottomDockWidgetArea, moMessages);
    resizeDocks({moMessages}, {120}, Qt::Vertical);
}

void MainWindow::ShowCatalogue()
{
    if (!moCatalogue) {
        moCatalogue = new CataloguePanel(
            moServices.Catalogue(), moServices.Pictures(),
            [this](const QString& orderNumber) {
                Document* document = moFiles.Current();
                return document ? ModuleDragData(*document->Station(), orderNumber) : nullptr;
            },
            moCatalogueDock);
        moCatalogueDock->setWidget(moCatalogue);
        connect(moCatalogue, &CataloguePanel::insertRequested, this, &MainWindow::Insert);
    }
    const Document* document = moFiles.Current();
    moCatalogue->Show(document ? document->Station()->StationKind() : vxStationKindCentral,
                      moServices.CurrentLanguage());
}

void MainWindow::FindInCatalogue()
{
    moCatalogueDock->show();
    moCatalogueDock->raise();
    if (moCatalogue) moCatalogue->FocusSearch();
}

void MainWindow::ConnectFileActions()
{
    const auto on = [](QAction& action, auto receiver, auto slot) {
        connect(&action, &QAction::triggered, receiver, slot);
    };
    on(moActions.fileNew, &moFiles, &FileCommands::New);
    on(moActions.fileOpen, &moFiles, &FileCommands::Open);
    on(moActions.fileSave, &moFiles, &FileCommands::Save);
    on(moActions.fileSaveAs, &moFiles, &FileCommands::SaveAs);
    on(moActions.fileClose, &moFiles, &FileCommands::Close);
    on(moActions.fileRecover, &moFiles, [this] { moFiles.OfferRecovery(true); });
    on(moActions.exportPicture, this,
       [this] { moStatusLine->Tell(ExportPicture(moServices, *moFiles.Current(), this)); });
    on(moActions.exportList, this, [this] { moStatusLine->Tell(ExportList(moServices, *moFiles.Current(), this)); });
    on(moActions.filePrint, this, [this] { moStatusLine->Tell(Print(moServices, *moFiles.Current(), this)); });
    on(moActions.fileQuit, this, &QWidget::close);
    connect(&moFiles, &FileCommands::aboutToClose, this, &MainWindow::CloseView);
    connect(&moFiles, &FileCommands::opened, this, &MainWindow::ShowDocument);
    connect(&moFiles, &FileCommands::changed, this, &MainWindow::UpdateActions);
    connect(&moFiles, &FileCommands::warned, this, &MainWindow::Warn);
    connect(&moRecentFiles, &RecentFiles::notKept, this,
            [this] { Warn(tr("The list of recent stations cannot be kept: the settings cannot be written.")); });
    connect(&moRecentFiles, &RecentFiles::changed, this, &MainWindow::FillRecentMenu);
    connect(moStartPage, &StartPage::fileChosen, &moFiles, &FileCommands::OpenFile);
    connect(moStartPage, &StartPage::exampleChosen, &moFiles, &FileCommands::OpenExample);
}

void MainWindow::ConnectEditActions()
{
    const auto on = [this](QAction& action, auto step) { connect(&action, &QAction::triggered, this, step); };
    on(moActions.editUndo, [this] { Step(&reference::History::Undo); });
    on(moActions.editRedo, [this] { Step(&reference::History::Redo); });
    on(moActions.editCut, [this] { moView->Manager().Cut(); });
    on(moActions.editCopy, [this] { moView->Manager().Copy(); });
    on(moActions.editPaste, [this] { Paste(); });
    on(moActions.editDelete, [this] { moView->Manager().Delete(); });
    on(moActions.editParameters, [this] { moView->Manager().EditModuleParams(); });
    on(moActions.editSelectRack, [this] { SelectRack(); });
    on(moActions.findInCatalogue, [this] { FindInCatalogue(); });
    connect(QApplication::clipboard(), &QClipboard::dataChanged, this, [this] {
        ReadClipboard();
        UpdateActions();
    });
}

void MainWindow::ConnectViewActions()
{
    moActions.viewMenu->insertAction(moActions.languageMenu->menuAction(), moCatalogueDock->toggleViewAction());
    moActions.viewMenu->insertAction(moActions.languageMenu->menuAction(), moMessages->toggleViewAction());
    moActions.viewMenu->insertAction(moActions.languageMenu->menuAction(), moActions.toolBar->toggleViewAction());
    moActions.viewMenu->insertSeparator(moActions.languageMenu->menuAction());
    connect(&moActions.languageEnglish, &QAction::triggered, this,
            [this] { moServices.StoreLanguage(Language::English); });
    connect(&moActions.languageGerman, &QAction::triggered, this,
            [this] { moServices.StoreLanguage(Language::German); });
    connect(&moActions.helpShortcuts, &QAction::triggered, this, [this] { ShowShortcuts(this); });
    connect(&moActions.helpAbout, &QAction::triggered, this, [this] { ShowAbout(this); });
}

void MainWindow::RetranslateUi()
{
    moActions.Retranslate();
    moCatalogueDock->setWindowTitle(tr("Catalogue"));
    moCatalogueDock->toggleViewAction()->setText(tr("&Catalogue"));
    if (moCatalogue) ShowCatalogue();
    FillRecentMenu();
    FillExamples();
    UpdateActions();
}

void MainWindow::changeEvent(QEvent* event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
    // Asked when the activation is over, for the question needs the focus itself.
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        QTimer::singleShot(0, &moFiles, &FileCommands::CheckFile);
    }
}

void MainWindow::resizeEvent(QResizeEvent* event)
{
    PaintedFrame::resizeEvent(event);
    GiveViewsRoom();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    // A menu's command runs inside the view that would end.
    if (QWidget* menu = QApplication::activePopupWidget()) {
        menu->close();
        QTimer::singleShot(0, this, &QWidget::close);
        event->ignore();
        return;
    }
    if (!moFiles.Close()) {
        event->ignore();
        return;
    }
    moServices.Settings().setValue(GeometryKey, saveGeometry());
    moServices.Settings().setValue(StateKey, saveState());
    event->accept();
}

void MainWindow::FillRecentMenu()
{
    const QStringList files = moRecentFiles.Files();
    moActions.recentMenu->clear();
    moActions.recentMenu->setEnabled(!files.isEmpty());
    for (const QString& file : files) {
        const QString shown = WithoutMnemonic(PlainText(file, LongestMenuText));
        connect(moActions.recentMenu->addAction(shown), &QAction::triggered, this,
                [this, file] { moFiles.OpenFile(file); });
    }
    moActions.recentMenu->addSeparator();
    connect(moActions.recentMenu->addAction(tr("Clear this list")), &QAction::triggered, this,
            [this] { moRecentFiles.Clear(); });
    moStartPage->RecentFiles(files);
}

void MainWindow::FillExamples()
{
    QList<std::pair<QString, QString>> examples;
    for (const QString& resource : ShippedExamples()) {
        QString name = resource.section(u'/', -1).section(u'.', 0, 0).replace(u'-', u' ');
        name.front() = name.front().toUpper();
        examples.append({name, resource});
    }
    moStartPage->Examples(examples);
}

void MainWindow::CloseView()
{
    moRefused = {};
    moClipboardModules.reset();
    delete std::exchange(moView, nullptr);
}

void MainWindow::ShowDocument()
{
    ShowCatalogue();
    if (Document* document = moFiles.Current()) {
        moView = new StationView(*document, this);
        moPages->addWidget(moView);
        moPages->setCurrentWidget(moView);
        connect(moView, &StationView::selectionChanged, this, &MainWindow::UpdateActions);
        connect(moView, &StationView::menuRequested, this, [this](const QPoint& point) {
            QMenu menu(this);
            menu.addActions({&moActions.editParameters, &moActions.editCut, &moActions.editCopy, &moActions.editPaste,
                             &moActions.editDelete});
            menu.exec(point);
        });
        const auto tell = [this](const reference::Refusal& refusal) {
            moStatusLine->Tell(ToQString(refusal.text, moServices.CurrentLanguage()));
        };
        connect(moView, &StationView::refused, this, tell);
        connect(moView, &StationView::dropAllowed, moStatusLine, &StatusLine::EndTelling);
        moRefused = document->Station()->Refused.Connect(tell);
        ReadClipboard();
        moView->FocusStation();
        GiveViewsRoom();
    } else {
        moPages->setCurrentWidget(moStartPage);
    }
    UpdateActions();
}

void MainWindow::GiveViewsRoom()
{
    // Asked when the window's own layout has been done.
    QTimer::singleShot(0, this, [this] {
        const int lacking = moView && !moCatalogueDock->isFloating() ? moView->LackingWidth() : 0;
        if (lacking > 0) resizeDocks({moCatalogueDock}, {moCatalogueDock->width() - lacking}, Qt::Horizontal);
    });
}

void MainWindow::UpdateTitle()
{
    const Document* document = moFiles.Current();
    setWindowModified(document && document->IsModified());
    setWindowTitle(document
                       ? QStringLiteral("%1[*] – Quillon Ed").arg(WithoutModifiedMark(PlainText(document->Title())))
                       : QStringLiteral("Quillon Ed"));
    setWindowFilePath(document ? document->FileName() : QString());
}

void MainWindow::UpdateActions()
{
    UpdateTitle();
    Document* document = moView ? moFiles.Current() : nullptr;
    moStatusLine->Show(document, moView);
    for (QAction* action : {&moActions.fileSave, &moActions.fileSaveAs, &moActions.fileClose, &moActions.exportList,
                            &moActions.filePrint, &moActions.editSelectRack}) {
        action->setEnabled(document != nullptr);
    }
    if (moCatalogue) moCatalogue->InsertEnabled(document && !document->Station()->IsReadOnly());

    // What is shown changes once and only when it is different: tools that are switched off and on again flicker.
    const reference::History* history = document ? &document->History() : nullptr;
    const auto name = [&](const std::string& step) {
        return InSentence(ToQString(step), moServices.CurrentLanguage());
    };
    moActions.editUndo.setEnabled(history && history->CanUndo());
    moActions.editRedo.setEnabled(history && history->CanRedo());
    moActions.NameUndo(history ? name(history->UndoName()) : QString(),
                       history ? name(history->RedoName()) : QString());
    EditCommands possible;
    if (document) {
        possible = G_PossibleSelectionCommands(ClassName, document->Station(), moView->Handler());
        // Offered wherever the focus is, as inserting is: what speaks against a place is told when it is tried.
        G_Trap(ClassName, "UpdateActions", [&] {
            possible.bPaste =
                moClipboardModules && moClipboardModules->Count() > 0 && !document->Station()->IsReadOnly();
        });
    }
    moActions.editCopy.setEnabled(possible.bCopy);
    moActions.editCut.setEnabled(possible.bCut);
    moActions.editDelete.setEnabled(possible.bDelete);
    moActions.editPaste.setEnabled(possible.bPaste);
    moActions.editParameters.setEnabled(possible.bEditModuleParams);
    moActions.exportPicture.setEnabled(document != nullptr);
}

void MainWindow::ReadClipboard()
{
    moClipboardModules.reset();
    if (Document* document = moFiles.Current()) {
        G_Trap(ClassName, "ReadClipboard", [&] { moClipboardModules = document->Station()->ClipboardModules(); });
    }
}

void MainWindow::Paste()
{
    QString refusal;
    G_Trap(ClassName, "Paste", [&] {
        const auto objection = moFiles.Current()->Station()->AgainstPlacing(moView->Handler()->FocusPosition(),
                                                                            moClipboardModules, false, nullptr);
        if (objection) refusal = ToQString(objection->text, moServices.CurrentLanguage());
    });
    if (refusal.isEmpty()) moView->Manager().Paste();
    else Refuse(refusal);
}

void MainWindow::Refuse(const QString& reason)
{
    QApplication::beep();
    moStatusLine->Tell(reason);
}

void MainWindow::SelectRack()
{
    G_Trap(ClassName, "SelectRack", [&] {
        const PositionInfo focus = G_PositionInfo(moView->Handler()->FocusPosition());
        moView->Handler()->SelectRack(moFiles.Current()->Station()->Racks()->Item(focus.lRack));
        moView->Handler()->SelChangeComplete();
    });
}

void MainWindow::Insert(const QString& orderNumber)
{
    Document* document = moFiles.Current();
    if (!document) return;
    const QString refusal = InsertModule(moServices, *document, *moView, orderNumber);
    if (!refusal.isEmpty()) Refuse(refusal);
}

void MainWindow::Step(bool (reference::History::*step)())
{
    G_Trap(ClassName, "Step", [&] { (moFiles.Current()->History().*step)(); });
    UpdateActions();
}

} // namespace quillon_ed
