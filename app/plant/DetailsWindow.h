#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/diag/RegisterMap.h"
#include "zqbchwcx/reference/model/contract/Station.h"

#include <QDialog>

class QLabel;
class QTreeWidget;

namespace quillon_ed {

class PlantSession;

/// All that the plant tells of a module or a sub-module. Follows the plant while it is open.
class DetailsWindow : public QDialog {
    Q_OBJECT

public:
    /// The session outlives the window, and its plant fits the station.
    DetailsWindow(zqbchwcx::reference::StationPtr oStation, PlantSession& session, zqbchwcx::reference::PlantItem item,
                  QWidget* parent);

    const zqbchwcx::reference::PlantItem& Item() const { return moItem; }

protected:
    void changeEvent(QEvent* event) override;

private:
    void RetranslateUi();
    void Fill();

    zqbchwcx::reference::StationPtr moStation;
    PlantSession& moSession;
    zqbchwcx::reference::PlantItem moItem;
    QLabel* moModule;
    QLabel* moState;
    QTreeWidget* moFindings;
    zqbchwcx::EventConnection moChanged;
};

} // namespace quillon_ed
