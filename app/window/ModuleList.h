#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/foundation/model/VxHWStation.h"
#include "zqbchwcx/selection/VxHWSelectionHandler.h"

#include <QWidget>

#include <vector>

class QTabBar;
class QTableView;
class QTimer;

namespace quillon_ed {

class ModuleListModel;

/// The places of the rack that has the focus as a table, with a tab for each rack. Its selected rows are the selected
/// places, its current row is the focus. Its rows stand where the arrow of an overview on its left points to.
class ModuleList : public QWidget {
    Q_OBJECT

public:
    ModuleList(zqbchwcx::VxHWStationPtr station, zqbchwcx::VxHWSelectionHandlerPtr handler, QWidget* parent);
    ~ModuleList() override;

signals:
    /// Enter or double-click on a row.
    void editRequested();
    void deleteRequested();
    void menuRequested(const QPoint& globalPosition);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void RetranslateUi();
    void FitToFont();
    void FillTabs();
    void ShowRack(std::int32_t lRack);
    void ShowSelection();
    void TakeSelection();
    void GoToRack(std::int32_t lRack);

    zqbchwcx::VxHWStationPtr moStation;
    zqbchwcx::VxHWSelectionHandlerPtr moHandler;
    ModuleListModel* moModel;
    QTabBar* moTabs;
    QTableView* moTable;
    QTimer* moRefresh;
    std::vector<zqbchwcx::EventConnection> mcolConnections;
    bool mbSynchronizing = false;
};

} // namespace quillon_ed
