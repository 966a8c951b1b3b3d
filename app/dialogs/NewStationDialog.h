#pragma once

#include "zqbchwcx/reference/model/StationData.h"

#include <QDialog>

class QComboBox;
class QLabel;
class QLineEdit;
class QSpinBox;

namespace quillon_ed {

/// Asks for the name, kind and size of a new station.
class NewStationDialog : public QDialog {
    Q_OBJECT

public:
    explicit NewStationDialog(QWidget* parent);

    /// The empty station that was asked for.
    zqbchwcx::reference::StationData Station() const;

private:
    void ShowKind();

    QLineEdit* moName;
    QComboBox* moKind;
    QLabel* moKindNote;
    QSpinBox* moRacks;
    QSpinBox* moPlaces;
};

} // namespace quillon_ed
