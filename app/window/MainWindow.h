#pragma once

#include "app/document/RecentFiles.h"
#include "app/window/FileCommands.h"
#include "app/window/PaintedFrame.h"
#include "app/window/WindowActions.h"
#include "zqbchwcx/foundation/model/Fwd.h"

class QDockWidget;
class QStackedWidget;

namespace quillon_ed {

class CataloguePanel;
class MessagesDock;
class StartPage;
class StationView;
class StatusLine;

/// The window of Quillon Ed: one station, the catalogue, the messages.
class MainWindow : public PaintedFrame {
    Q_OBJECT

public:
    /// The services outlive the window.
    explicit MainWindow(AppServices& services);
    ~MainWindow() override;

    /// Opens the file, or the start page for none, when the menus and tools have been painted.
    void Start(const QString& file);
    /// Adds to the messages.
    void Warn(const QString& text);
    FileCommands& Files() { return moFiles; }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void ConnectFileActions();
    void ConnectEditActions();
    void ConnectViewActions();
    void AddDocks();
    void ShowCatalogue();
    void FindInCatalogue();
    void RetranslateUi();
    void FillRecentMenu();
    void FillExamples();

    void CloseView();
    void ShowDocument();
    /// Takes from the catalogue what the views of the station need to stand side by side.
    void GiveViewsRoom();
    void UpdateTitle();
    void UpdateActions();
    void ReadClipboard();
    void Paste();
    /// Tells why something was not done.
    void Refuse(const QString& reason);
    void SelectRack();
    void Insert(const QString& orderNumber);
    void Step(bool (zqbchwcx::reference::History::*step)());

    AppServices& moServices;
    RecentFiles moRecentFiles;
    FileCommands moFiles;
    WindowActions moActions;
    QStackedWidget* moPages;
    StartPage* moStartPage;
    StationView* moView = nullptr;
    QDockWidget* moCatalogueDock;
    CataloguePanel* moCatalogue = nullptr; ///< none before there is a page to show it beside
    MessagesDock* moMessages = nullptr;
    StatusLine* moStatusLine;
    zqbchwcx::VxHWModulesPtr moClipboardModules;
    zqbchwcx::EventConnection moRefused;
};

} // namespace quillon_ed
