#include "app/window/WindowActions.h"

#include "app/host/SvgIcon.h"

#include <QAction>
#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace quillon_ed {

using zqbchwcx::reference::Language;

namespace {

struct ActionTexts {
    Q_DECLARE_TR_FUNCTIONS(quillon_ed::WindowActions)
};

QString NamedText(const QString& plain, const QString& named, const QString& step)
{
    return step.isEmpty() ? plain : named.arg(step);
}

} // namespace

WindowActions::WindowActions(QMainWindow& window)
    : fileMenu(window.menuBar()->addMenu(QString())), recentMenu(new QMenu(&window)),
      editMenu(window.menuBar()->addMenu(QString())), viewMenu(window.menuBar()->addMenu(QString())),
      languageMenu(new QMenu(&window)), plantMenu(window.menuBar()->addMenu(QString())), speedMenu(new QMenu(&window)),
      helpMenu(window.menuBar()->addMenu(QString())), toolBar(window.addToolBar(QString()))
{
    const std::pair<QAction*, const char*> icons[] = {{&fileNew, "new"},
                                                      {&fileOpen, "open"},
                                                      {&fileSave, "save"},
                                                      {&fileSaveAs, "save-as"},
                                                      {&exportPicture, "export"},
                                                      {&filePrint, "print"},
                                                      {&editUndo, "undo"},
                                                      {&editRedo, "redo"},
                                                      {&editCut, "cut"},
                                                      {&editCopy, "copy"},
                                                      {&editPaste, "paste"},
                                                      {&editDelete, "delete"},
                                                      {&editParameters, "parameters"},
                                                      {&findInCatalogue, "search"},
                                                      {&modeConfiguration, "mode-configuration"},
                                                      {&modeDiagnostics, "mode-diagnostics"},
                                                      {&plantConnect, "connection"},
                                                      {&plantRefresh, "refresh"},
                                                      {&plantRecord, "record"},
                                                      {&plantPlay, "play"},
                                                      {&plantStep, "step"}};
    for (const auto& [action, icon] : icons) action->setIcon(SvgIcon(QLatin1String(icon)));

    auto* languages = new QActionGroup(&window);
    for (QAction* action : {&languageEnglish, &languageGerman}) {
        action->setCheckable(true);
        languages->addAction(action);
    }
    auto* modes = new QActionGroup(&window);
    for (QAction* action : {&modeConfiguration, &modeDiagnostics}) {
        action->setCheckable(true);
        modes->addAction(action);
    }
    modeConfiguration.setChecked(true);
    for (QAction* action : {&plantRecord, &plantPlay}) action->setCheckable(true);
    toolBar->setObjectName(QStringLiteral("toolBar"));
    toolBar->setIconSize({20, 20});
    SetShortcuts();
    FillMenus();
    Retranslate();
}

void WindowActions::SetShortcuts()
{
    fileNew.setShortcut(QKeySequence::New);
    fileOpen.setShortcut(QKeySequence::Open);
    fileSave.setShortcut(QKeySequence::Save);
    fileSaveAs.setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    fileClose.setShortcut(Qt::CTRL | Qt::Key_W);
    filePrint.setShortcut(QKeySequence::Print);
    exportPicture.setShortcut(Qt::CTRL | Qt::Key_E);
    fileQuit.setShortcut(Qt::CTRL | Qt::Key_Q);
    editUndo.setShortcut(Qt::CTRL | Qt::Key_Z);
    editRedo.setShortcuts({Qt::CTRL | Qt::Key_Y, Qt::CTRL | Qt::SHIFT | Qt::Key_Z});
    editCut.setShortcut(QKeySequence::Cut);
    editCopy.setShortcut(QKeySequence::Copy);
    editPaste.setShortcut(QKeySequence::Paste);
    editDelete.setShortcut(QKeySequence::Delete);
    editParameters.setShortcut(Qt::ALT | Qt::Key_Return);
    editSelectRack.setShortcut(QKeySequence::SelectAll);
    findInCatalogue.setShortcut(QKeySequence::Find);
    modeConfiguration.setShortcut(Qt::CTRL | Qt::Key_1);
    modeDiagnostics.setShortcut(Qt::CTRL | Qt::Key_2);
    plantRefresh.setShortcut(QKeySequence::Refresh);
    helpShortcuts.setShortcut(QKeySequence::HelpContents);
}

void WindowActions::FillMenus()
{
    fileMenu->addActions({&fileNew, &fileOpen});
    fileMenu->addMenu(recentMenu);
    fileMenu->addAction(&fileClose);
    fileMenu->addSeparator();
    fileMenu->addActions({&fileSave, &fileSaveAs, &fileRecover});
    fileMenu->addSeparator();
    fileMenu->addActions({&exportPicture, &exportList, &filePrint});
    fileMenu->addSeparator();
    fileMenu->addAction(&fileQuit);

    editMenu->addActions({&editUndo, &editRedo});
    editMenu->addSeparator();
    editMenu->addActions({&editCut, &editCopy, &editPaste, &editDelete});
    editMenu->addSeparator();
    editMenu->addActions({&editParameters, &editSelectRack});
    editMenu->addSeparator();
    editMenu->addAction(&findInCatalogue);

    viewMenu->addActions({&modeConfiguration, &modeDiagnostics});
    viewMenu->addSeparator();
    languageMenu->addActions({&languageEnglish, &languageGerman});
    viewMenu->addMenu(languageMenu);
    plantMenu->addActions({&plantConnect, &plantDisconnect, &plantRefresh});
    plantMenu->addSeparator();
    plantMenu->addAction(&plantRecord);
    plantMenu->addSeparator();
    plantMenu->addActions({&plantPlay, &plantStep});
    plantMenu->addMenu(speedMenu);
    helpMenu->addActions({&helpShortcuts, &helpAbout});

    toolBar->addActions({&modeConfiguration, &modeDiagnostics});
    for (QAction* mode : {&modeConfiguration, &modeDiagnostics})
        static_cast<QToolButton*>(toolBar->widgetForAction(mode))->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    toolBar->addSeparator();
    toolBar->addActions({&fileNew, &fileOpen, &fileSave});
    toolBar->addSeparator();
    toolBar->addActions({&editUndo, &editRedo});
    toolBar->addSeparator();
    toolBar->addActions({&editCut, &editCopy, &editPaste, &editDelete});
    toolBar->addSeparator();
    toolBar->addActions({&editParameters, &exportPicture, &filePrint});
}

void WindowActions::Retranslate()
{
    fileMenu->setTitle(ActionTexts::tr("&File"));
    recentMenu->setTitle(ActionTexts::tr("Open &recent"));
    editMenu->setTitle(ActionTexts::tr("&Edit"));
    viewMenu->setTitle(ActionTexts::tr("&View"));
    languageMenu->setTitle(ActionTexts::tr("&Language"));
    plantMenu->setTitle(ActionTexts::tr("&Plant"));
    speedMenu->setTitle(ActionTexts::tr("S&peed"));
    helpMenu->setTitle(ActionTexts::tr("&Help"));
    toolBar->setWindowTitle(ActionTexts::tr("Toolbar"));
    toolBar->toggleViewAction()->setText(ActionTexts::tr("&Toolbar"));

    fileNew.setText(ActionTexts::tr("&New station…"));
    fileOpen.setText(ActionTexts::tr("&Open…"));
    fileSave.setText(ActionTexts::tr("&Save"));
    fileSaveAs.setText(ActionTexts::tr("Save &as…"));
    fileClose.setText(ActionTexts::tr("&Close"));
    exportPicture.setText(ActionTexts::tr("&Export picture…"));
    exportList.setText(ActionTexts::tr("Export module &list…"));
    filePrint.setText(ActionTexts::tr("&Print…"));
    fileRecover.setText(ActionTexts::tr("Reco&ver unsaved stations…"));
    fileQuit.setText(ActionTexts::tr("&Quit"));
    editCut.setText(ActionTexts::tr("Cu&t"));
    editCopy.setText(ActionTexts::tr("&Copy"));
    editPaste.setText(ActionTexts::tr("&Paste"));
    editDelete.setText(ActionTexts::tr("&Delete"));
    editParameters.setText(ActionTexts::tr("Para&meters…"));
    editSelectRack.setText(ActionTexts::tr("Select &all of the rack"));
    findInCatalogue.setText(ActionTexts::tr("&Find in the catalogue"));
    modeConfiguration.setText(ActionTexts::tr("&Configuration"));
    modeDiagnostics.setText(ActionTexts::tr("&Diagnostics"));
    plantConnect.setText(ActionTexts::tr("&Connect…"));
    plantDisconnect.setText(ActionTexts::tr("&Disconnect"));
    plantRefresh.setText(ActionTexts::tr("&Refresh"));
    plantRecord.setText(ActionTexts::tr("Rec&ord…"));
    plantPlay.setText(ActionTexts::tr("&Play"));
    plantStep.setText(ActionTexts::tr("&Step"));
    languageEnglish.setText(QStringLiteral("&English"));
    languageGerman.setText(QStringLiteral("&Deutsch"));
    helpShortcuts.setText(ActionTexts::tr("&Keyboard and mouse"));
    helpAbout.setText(ActionTexts::tr("&About Quillon Ed"));
    NameUndo({}, {});
}

void WindowActions::ShowLanguage(Language language)
{
    (language == Language::German ? languageGerman : languageEnglish).setChecked(true);
}

void WindowActions::NameUndo(const QString& undo, const QString& redo)
{
    editUndo.setText(NamedText(ActionTexts::tr("&Undo"), ActionTexts::tr("&Undo %1"), undo));
    editRedo.setText(NamedText(ActionTexts::tr("&Redo"), ActionTexts::tr("&Redo %1"), redo));
}

} // namespace quillon_ed
