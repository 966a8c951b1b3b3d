#pragma once

#include "zqbchwcx/reference/catalogue/LocalizedText.h"

#include <QDialog>
#include <QStringList>

class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;
class QRadioButton;
class QSpinBox;
class QVBoxLayout;

namespace quillon_ed {

/// Asks where the state of a plant comes from: a device on the network, a recording, or a simulation.
class ConnectDialog : public QDialog {
    Q_OBJECT

public:
    /// The sources that were used last, newest first; the newest is proposed.
    ConnectDialog(const QStringList& lastSources, const QString& folder, zqbchwcx::reference::Language language,
                  QWidget* parent);

    /// The name of the source, as on the command line.
    QString Source() const;

private:
    void AddLive(QVBoxLayout& column);
    void AddRecording(QVBoxLayout& column, const QString& folder);
    void AddSimulation(QVBoxLayout& column);
    void Propose(const QString& source);
    void Update();

    const zqbchwcx::reference::Language meLanguage;
    QComboBox* moLast;
    QRadioButton* moLive;
    QLineEdit* moHost;
    QSpinBox* moPort;
    QSpinBox* moUnit;
    QRadioButton* moRecording;
    QLineEdit* moFile;
    QRadioButton* moSimulated;
    QSpinBox* moSeed;
    QLabel* moReason;
    QDialogButtonBox* moButtons;
};

} // namespace quillon_ed
