#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/managers/VxHWConfigManager.h"
#include "zqbchwcx/reference/history/ViewState.h"
#include "zqbchwcx/reference/model/rules/Refusal.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

class QLabel;
class QScrollArea;

namespace quillon_ed {

class CellMessage;
class Document;
class ModuleList;

/// The views of one station, connected in configuration mode: the overview with the table beside it. A central station
/// that is larger than these show has the list of all its modules in place of the table.
class StationView : public QWidget {
    Q_OBJECT

public:
    /// The document outlives the view.
    StationView(Document& document, QWidget* parent);
    ~StationView() override;

    zqbchwcx::VxHWConfigManager& Manager() { return *moManager; }
    const zqbchwcx::VxHWSelectionHandlerPtr& Handler() const { return moHandler; }
    zqbchwcx::IVxHWDragDropControllerPtr DragDropController() const { return moTable->VxHWDragDropController(); }
    /// What undo brings back: during a drag, whose focus follows the mouse, the view from before the drag.
    zqbchwcx::reference::ViewState View() const;
    void FocusStation();
    /// How many pixels more the views need to be seen side by side as a whole; 0 for none.
    int LackingWidth() const;

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void selectionChanged();
    void menuRequested(const QPoint& globalPosition);
    /// A key would have changed a station that may not be changed, or a drag is over a place that does not take it.
    void refused(const zqbchwcx::reference::Refusal& refusal);
    /// The drag has gone on to a place that takes it.
    void dropAllowed();

private:
    class DragWatch;

    QWidget* MakeLeftSide();
    void TellPartShown();
    template <class Widget>
    QWidget* UseOverview(Widget* widget);
    QWidget* MakeTable();
    template <class Widget>
    QWidget* UseTable(Widget* widget);
    /// Where the table scrolls, the overview's arrow goes with its rows.
    void CoupleRows();
    QWidget* MakeList();
    void TellDropTarget(bool bMove);
    void TellRefusedEdit(const QString& value, const QRect& cellOnScreen);

    Document& moDocument;
    std::shared_ptr<zqbchwcx::IVxHWControl> moOverview;
    std::shared_ptr<zqbchwcx::IVxHWControl> moTable;
    std::unique_ptr<zqbchwcx::VxHWConfigManager> moManager;
    zqbchwcx::VxHWSelectionHandlerPtr moHandler;
    std::shared_ptr<DragWatch> moDragWatch;
    std::int32_t mlDropTold = zqbchwcx::vxNoPosition; ///< the position of a drag that was told of last
    QWidget* moOverviewWidget = nullptr;
    QScrollArea* moViews = nullptr; ///< where there is a table
    ModuleList* moList = nullptr;   ///< where there is no table
    CellMessage* moCellMessage;
    QString msRefusal;             ///< why the model refused the last change
    QLabel* moPartShown = nullptr; ///< below a picture that is not whole
    std::vector<zqbchwcx::EventConnection> mcolConnections;
};

} // namespace quillon_ed
