#pragma once

#include "zqbchwcx/reference/diag/RegisterMap.h"

#include <QDockWidget>

class QLineEdit;
class QPushButton;
class QSortFilterProxyModel;
class QTreeView;

namespace quillon_ed {

class FaultLogModel;

/// The log of a plant with a filter; an entry leads to its place, and what is shown can be written to a file.
class FaultLogDock : public QDockWidget {
    Q_OBJECT

public:
    /// The model outlives the dock.
    FaultLogDock(FaultLogModel& model, QWidget* parent);

    /// The entries that the filter leaves, with headings, as RFC 4180.
    QByteArray Csv() const;

signals:
    void placeChosen(const zqbchwcx::reference::PlantItem& item);
    void saveRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    void RetranslateUi();
    void Choose(const QModelIndex& shown);
    void UpdateButtons();

    FaultLogModel& moModel;
    QSortFilterProxyModel* moFiltered;
    QLineEdit* moFilter;
    QTreeView* moList;
    QPushButton* moSave;
    QPushButton* moClear;
};

} // namespace quillon_ed
