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
#include "app/plant/FaultLogDock.h"
#include "app/window/AfterFirstPaint.h"
#include "app/window/ConfigurationView.h"
#include "app/window/DiagnosticsView.h"
#include "app/window/DroppedFiles.h"
#include "app/window/EditParameters.h"
#include "app/window/ExportCommands.h"
#include "app/window/MessagesDock.h"
#include "app/window/ModuleInserter.h"
#include "app/window/StartPage.h"
#include "app/window/StationViews.h"
#include "app/window/StatusLine.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_Main.h"
#include "zqbchwcx/foundation/model/VxHWModules.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"
#include "zqbchwcx/selection/EditCommands.h"

#include <QActionGroup>
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
      moRecentFiles(services.Settings(), nullptr), moFiles(services, moRecentFiles, StationHooks(), *this),
      moPlant(services, *this), moActions(*this), moPages(new QStackedWidget(this)),
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
    ConnectPlantActions();
    moPlant.Log().ShowLanguage(services.CurrentLanguage());
    moActions.ShowLanguage(services.CurrentLanguage());
    FillRecentMenu();
    FillExamples();
    // What is put into a window that is visible already shows when events are handled, and only what shows can get
    // its size back.
    QCoreApplication::sendPostedEvents();
    restoreState(services.Settings().value(StateKey).toByteArray());
    moMessages->hide();
    moFaultLog->hide();
    mbCatalogueHidden = moCatalogueDock->isHidden();
    connect(moCatalogueDock->toggleViewAction(), &QAction::triggered, this, [this](bool bShown) {
        if (!Diagnosing()) mbCatalogueHidden = !bShown;
    });
    OpenDroppedFiles(*this, [this](const QString& file) { moFiles.OpenFile(file); });
    UpdateActions();
}

MainWindow::~MainWindow()
{
    CloseDocument();
}

reference::StationServices MainWindow::StationHooks()
{
    reference::StationServices hooks;
    hooks.parameterDialog = [this](const reference::ModuleData& module, reference::PlaceRef place) {
        return EditParameters(moServices, *moFiles.Current()->Station(), module, place, this);
    };
    hooks.moduleDiagnostics = [this](reference::PlaceRef place, std::int32_t subModule) {
        moPlant.ShowDetails({place, subModule});
    };
    hooks.refreshDiagnostics = [this] { moPlant.Poll(); };
    return hooks;
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
    moFaultLog = new FaultLogDock(moPlant.Log(), this);
    addDockWidget(Qt::BottomDockWidgetArea, moFaultLog);
    tabifyDockWidget(moMessages, moFaultLog);
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
       [this] { moStatusLine->Tell(ExportPicture(moServices, *moFiles.Current(), ShownContent(), this)); });
    on(moActions.exportList, this, [this] { moStatusLine->Tell(ExportList(moServices, *moFiles.Current(), this)); });
    on(moActions.filePrint, this, [this] { moStatusLine->Tell(Print(moServices, *moFiles.Current(), this)); });
    on(moActions.fileQuit, this, &QWidget::close);
    connect(&moFiles, &FileCommands::aboutToClose, this, &MainWindow::CloseDocument);
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
    on(moActions.editCut, [this] { Editable()->Manager().Cut(); });
    on(moActions.editCopy, [this] { Editable()->Manager().Copy(); });
    on(moActions.editPaste, [this] { Paste(); });
    on(moActions.editDelete, [this] { Editable()->Manager().Delete(); });
    on(moActions.editParameters, [this] { Editable()->Manager().EditModuleParams(); });
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
    moActions.viewMenu->insertAction(moActions.languageMenu->menuAction(), moFaultLog->toggleViewAction());
    moActions.viewMenu->insertAction(moActions.languageMenu->menuAction(), moActions.toolBar->toggleViewAction());
    moActions.viewMenu->insertSeparator(moActions.languageMenu->menuAction());
    connect(&moActions.languageEnglish, &QAction::triggered, this,
            [this] { moServices.StoreLanguage(Language::English); });
    connect(&moActions.languageGerman, &QAction::triggered, this,
            [this] { moServices.StoreLanguage(Language::German); });
    connect(&moActions.helpShortcuts, &QAction::triggered, this, [this] { ShowShortcuts(this); });
    connect(&moActions.helpAbout, &QAction::triggered, this, [this] { ShowAbout(this); });
}

void MainWindow::ConnectPlantActions()
{
    const auto on = [this](QAction& action, auto step) { connect(&action, &QAction::triggered, this, step); };
    on(moActions.modeConfiguration, [this] { ShowMode(Mode::Configuration); });
    on(moActions.modeDiagnostics, [this] { ShowMode(Mode::Diagnostics); });
    on(moActions.plantConnect, [this] { moPlant.AskForSource(); });
    on(moActions.plantDisconnect, [this] { moPlant.Disconnect(); });
    on(moActions.plantRefresh, [this] { Diagnosing()->Refresh(); });
    on(moActions.plantRecord, [this](bool bOn) { moPlant.Record(bOn); });
    on(moActions.plantPlay, [this](bool bOn) { moPlant.Play(bOn); });
    on(moActions.plantStep, [this] { moPlant.Step(); });
    auto* speeds = new QActionGroup(this);
    for (const double speed : {0.1, 1.0, 10.0, 100.0, 1000.0}) {
        QAction* action = moActions.speedMenu->addAction(QStringLiteral("%1 ×").arg(QLocale().toString(speed)));
        action->setCheckable(true);
        action->setChecked(speed == 1.0);
        speeds->addAction(action);
        connect(action, &QAction::triggered, this, [this, speed] { moPlant.Speed(speed); });
    }
    connect(&moPlant, &PlantCommands::changed, this, &MainWindow::UpdateActions);
    connect(&moPlant, &PlantCommands::told, moStatusLine, &StatusLine::Tell);
    connect(&moPlant, &PlantCommands::warned, this, &MainWindow::Warn);
    connect(moFaultLog, &FaultLogDock::placeChosen, this, [this](const reference::PlantItem& item) {
        if (auto* view = Diagnosing()) view->GoTo(item.place);
    });
    connect(moFaultLog, &FaultLogDock::saveRequested, this, &MainWindow::SaveFaultLog);
}

PictureContent MainWindow::ShownContent()
{
    PictureContent content;
    if (Diagnosing()) content.diagnostics = moPlant.Session().Service();
    return content;
}

void MainWindow::SaveFaultLog()
{
    moStatusLine->Tell(ExportText(moServices, *moFiles.Current(), moFaultLog->Csv(), this));
}

void MainWindow::RetranslateUi()
{
    moActions.Retranslate();
    moPlant.Log().ShowLanguage(moServices.CurrentLanguage());
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
    moCatalogueDock->setVisible(!mbCatalogueHidden); // as configuration begins
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

ConfigurationView* MainWindow::Editable() const
{
    return qobject_cast<ConfigurationView*>(moView);
}

DiagnosticsView* MainWindow::Diagnosing() const
{
    return qobject_cast<DiagnosticsView*>(moView);
}

void MainWindow::CloseView()
{
    delete std::exchange(moView, nullptr);
}

void MainWindow::CloseDocument()
{
    moRefused = {};
    moClipboardModules.reset();
    CloseView();
    moPlant.Use(nullptr);
}

void MainWindow::ShowDocument()
{
    ShowCatalogue();
    Document* document = moFiles.Current();
    moPlant.Use(document);
    if (document) {
        moRefused = document->Station()->Refused.Connect([this](const reference::Refusal& refusal) {
            moStatusLine->Tell(ToQString(refusal.text, moServices.CurrentLanguage()));
        });
        ReadClipboard();
        ShowMode(meMode);
    } else {
        moPages->setCurrentWidget(moStartPage);
        ShowDocks();
        UpdateActions();
    }
}

void MainWindow::ShowMode(Mode mode)
{
    Document& document = *moFiles.Current();
    const bool isOther = moView && mode != meMode;
    if (moView && !isOther) return;
    if (mode == Mode::Diagnostics && !moPlant.Begin()) mode = Mode::Configuration;
    std::optional<reference::ViewState> state;
    std::vector<int> scrolled;
    if (moView) {
        state = moView->View();
        scrolled = moView->Views().Scrolled();
    }
    CloseView();
    if (mode == Mode::Diagnostics) moView = new DiagnosticsView(document, moPlant.Session(), this);
    else moView = new ConfigurationView(document, this);
    meMode = mode;
    UseView();
    if (state) {
        document.RestoreView(*state);
        moView->Views().ScrollTo(scrolled);
    }
    ShowDocks();
    moView->FocusStation();
    GiveViewsRoom();
    UpdateActions();
}

void MainWindow::ShowDocks()
{
    moCatalogueDock->setVisible(!Diagnosing() && !mbCatalogueHidden);
    moFaultLog->setVisible(Diagnosing());
    if (Diagnosing()) moFaultLog->raise();
}

void MainWindow::UseView()
{
    moPages->addWidget(moView);
    moPages->setCurrentWidget(moView);
    connect(moView, &StationView::selectionChanged, this, &MainWindow::UpdateActions);
    connect(moView, &StationView::menuRequested, this, [this](const QPoint& point) {
        if (!Editable()) return;
        QMenu menu(this);
        menu.addActions({&moActions.editParameters, &moActions.editCut, &moActions.editCopy, &moActions.editPaste,
                         &moActions.editDelete});
        menu.exec(point);
    });
    connect(moView, &StationView::refused, this, [this](const reference::Refusal& refusal) {
        moStatusLine->Tell(ToQString(refusal.text, moServices.CurrentLanguage()));
    });
    connect(moView, &StationView::dropAllowed, moStatusLine, &StatusLine::EndTelling);
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
    const bool bDiagnosing = Diagnosing() != nullptr;
    moStatusLine->ShowConnection(bDiagnosing ? moPlant.ConnectionState() : QString());
    for (QAction* action : {&moActions.fileSave, &moActions.fileSaveAs, &moActions.fileClose, &moActions.exportList,
                            &moActions.filePrint, &moActions.editSelectRack}) {
        action->setEnabled(document != nullptr);
    }
    const bool bEditable = Editable() != nullptr;
    if (moCatalogue) moCatalogue->InsertEnabled(bEditable && !document->Station()->IsReadOnly());

    // What is shown changes once and only when it is different: tools that are switched off and on again flicker.
    const reference::History* history = document ? &document->History() : nullptr;
    const auto name = [&](const std::string& step) {
        return InSentence(ToQString(step), moServices.CurrentLanguage());
    };
    moActions.editUndo.setEnabled(bEditable && history->CanUndo());
    moActions.editRedo.setEnabled(bEditable && history->CanRedo());
    moActions.NameUndo(history ? name(history->UndoName()) : QString(),
                       history ? name(history->RedoName()) : QString());
    EditCommands possible;
    if (bEditable) {
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
    UpdatePlantActions();
}

void MainWindow::UpdatePlantActions()
{
    const bool bOpen = moView != nullptr;
    const bool bDiagnosing = Diagnosing() != nullptr;
    const bool bSource = bDiagnosing && moPlant.Session().HasSource();
    for (QAction* action : {&moActions.modeConfiguration, &moActions.modeDiagnostics}) action->setEnabled(bOpen);
    (meMode == Mode::Diagnostics ? moActions.modeDiagnostics : moActions.modeConfiguration).setChecked(true);
    for (QAction* action : {&moActions.plantConnect, &moActions.plantRefresh}) action->setEnabled(bDiagnosing);
    moActions.plantDisconnect.setEnabled(bSource);
    moActions.plantRecord.setEnabled(bSource && !moPlant.IsPlayed());
    moActions.plantRecord.setChecked(moPlant.IsRecording());
    for (QAction* action : {&moActions.plantPlay, &moActions.plantStep})
        action->setEnabled(bSource && moPlant.IsPlayed());
    moActions.plantPlay.setChecked(moPlant.IsPlaying());
    moActions.speedMenu->setEnabled(bSource && moPlant.IsPlayed());
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
    if (refusal.isEmpty()) Editable()->Manager().Paste();
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
    ConfigurationView* view = Editable();
    if (!document || !view) return;
    const QString refusal = InsertModule(moServices, *document, *view, orderNumber);
    if (!refusal.isEmpty()) Refuse(refusal);
}

void MainWindow::Step(bool (reference::History::*step)())
{
    G_Trap(ClassName, "Step", [&] { (moFiles.Current()->History().*step)(); });
    UpdateActions();
}

} // namespace quillon_ed
