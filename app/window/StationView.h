#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/reference/history/ViewState.h"
#include "zqbchwcx/reference/model/rules/Refusal.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <QWidget>

#include <vector>

namespace quillon_ed {

class Document;
class ModuleList;
class StationViews;

/// A station as one mode shows it: its views, and what the window may ask of them. The manager that connects them is
/// the mode's own.
class StationView : public QWidget {
    Q_OBJECT

public:
    ~StationView() override;

    const zqbchwcx::VxHWSelectionHandlerPtr& Handler() const { return moHandler; }
    /// What undo brings back, and another mode goes on with.
    virtual zqbchwcx::reference::ViewState View() const;
    StationViews& Views() { return *moViews; }
    void FocusStation();
    /// How many pixels more the views need to be seen side by side as a whole; 0 for none.
    int LackingWidth() const;

signals:
    void selectionChanged();
    void menuRequested(const QPoint& globalPosition);
    /// Something was not done, and why.
    void refused(const zqbchwcx::reference::Refusal& refusal);
    /// The drag has gone on to a place that takes it.
    void dropAllowed();

protected:
    /// The document outlives the view.
    StationView(Document& document, QWidget* parent);

    Document& CurrentDocument() const { return moDocument; }
    /// Shows what the mode's manager has connected, with `below` (or nothing) beneath the table.
    void Show(const zqbchwcx::VxHWSelectionHandlerPtr& handler, QWidget* below);
    /// The list in place of the table of a larger station; null with a table.
    ModuleList* List() const { return moList; }

private:
    Document& moDocument;
    zqbchwcx::VxHWSelectionHandlerPtr moHandler;
    StationViews* moViews;
    ModuleList* moList = nullptr;
    std::vector<zqbchwcx::EventConnection> mcolConnections;
};

} // namespace quillon_ed
