#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <QAction>
#include <QMainWindow>

class QActionGroup;
class QMenu;
class QToolBar;

namespace quillon_ed {

/// The commands of a window, with their menus and the toolbar. What they do is connected by the window.
struct WindowActions {
    explicit WindowActions(QMainWindow& window);

    /// Texts in the current language.
    void Retranslate();
    void ShowLanguage(zqbchwcx::reference::Language language);
    /// Names the step in the texts of undo and redo; empty names leave the plain texts.
    void NameUndo(const QString& undo, const QString& redo);

    QAction fileNew, fileOpen, fileSave, fileSaveAs, fileClose, exportPicture, exportList, filePrint, fileRecover,
        fileQuit;
    QAction editUndo, editRedo, editCut, editCopy, editPaste, editDelete, editParameters, editSelectRack,
        findInCatalogue;
    QAction modeConfiguration, modeDiagnostics;
    QAction plantConnect, plantDisconnect, plantRefresh, plantRecord, plantPlay, plantStep;
    QAction languageEnglish, languageGerman;
    QAction helpShortcuts, helpAbout;

    QMenu* fileMenu;
    QMenu* recentMenu;
    QMenu* editMenu;
    QMenu* viewMenu;
    QMenu* languageMenu;
    QMenu* plantMenu;
    QMenu* speedMenu; ///< of a recording that is played
    QMenu* helpMenu;
    QToolBar* toolBar;

private:
    void SetShortcuts();
    void FillMenus();
};

} // namespace quillon_ed
