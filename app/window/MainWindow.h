#pragma once

#include "app/document/RecentFiles.h"
#include "app/window/FileCommands.h"
#include "app/window/WindowActions.h"
#include "foundation/model/Fwd.h"

#include <QMainWindow>

class QStackedWidget;

namespace quillon_ed {

class CatalogueDock;
class MessagesDock;
class StartPage;
class StationExport;
class StationView;
class StatusLine;

/// The window of Quillon Ed: one station, the catalogue, the messages.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// The services outlive the window.
    explicit MainWindow(AppServices& services);
    ~MainWindow() override;

    FileCommands& Files() { return moFiles; }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ConnectFileActions();
    void ConnectEditActions();
    void ConnectViewActions();
    void AddDocks();
    void RetranslateUi();
    void FillRecentMenu();
    void FillExamples();

    void CloseView();
    void ShowDocument();
    void UpdateTitle();
    void UpdateActions();
    void UpdateEditActions(const zqbchwcx::VxHWStation& station);
    void ReadClipboard();
    bool CanPaste(const zqbchwcx::VxHWStation& station) const;
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
    CatalogueDock* moCatalogue = nullptr;
    MessagesDock* moMessages = nullptr;
    StatusLine* moStatusLine;
    zqbchwcx::VxHWModulesPtr moClipboardModules;
    zqbchwcx::EventConnection moRefused;
};

} // namespace quillon_ed
