#pragma once

#include "app/document/RecentFiles.h"
#include "app/export/PictureContent.h"
#include "app/plant/PlantCommands.h"
#include "app/window/FileCommands.h"
#include "app/window/PaintedFrame.h"
#include "app/window/WindowActions.h"
#include "zqbchwcx/foundation/model/Fwd.h"

class QDockWidget;
class QStackedWidget;

namespace quillon_ed {

class CataloguePanel;
class ConfigurationView;
class DiagnosticsView;
class FaultLogDock;
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
    PlantCommands& Plant() { return moPlant; }

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    zqbchwcx::reference::StationServices StationHooks();
    void ConnectFileActions();
    void ConnectEditActions();
    void ConnectViewActions();
    void ConnectPlantActions();
    void AddDocks();
    void ShowCatalogue();
    void FindInCatalogue();
    void RetranslateUi();
    void FillRecentMenu();
    void FillExamples();

    /// The view, when it can edit the station; else null.
    ConfigurationView* Editable() const;
    DiagnosticsView* Diagnosing() const;
    void CloseView();
    void CloseDocument();
    void ShowDocument();
    enum class Mode { Configuration, Diagnostics };
    /// Shows the document in the mode; selection, focus and scroll position come along.
    void ShowMode(Mode mode);
    /// Each mode has its own tools beside the station.
    void ShowDocks();
    void UseView();
    /// What an exported picture shows: the mode that is seen.
    PictureContent ShownContent();
    void SaveFaultLog();
    /// Takes from the catalogue what the views of the station need to stand side by side.
    void GiveViewsRoom();
    void UpdateTitle();
    void UpdateActions();
    void UpdatePlantActions();
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
    PlantCommands moPlant;
    WindowActions moActions;
    QStackedWidget* moPages;
    StartPage* moStartPage;
    StationView* moView = nullptr;
    QDockWidget* moCatalogueDock;
    CataloguePanel* moCatalogue = nullptr; ///< none before there is a page to show it beside
    MessagesDock* moMessages = nullptr;
    FaultLogDock* moFaultLog = nullptr;
    StatusLine* moStatusLine;
    zqbchwcx::VxHWModulesPtr moClipboardModules;
    zqbchwcx::EventConnection moRefused;
    Mode meMode = Mode::Configuration;
    bool mbCatalogueHidden = false; ///< by the user, in configuration mode
};

} // namespace quillon_ed
