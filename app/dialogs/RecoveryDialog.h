#pragma once

#include "zqbchwcx/reference/files/Recovery.h"

#include <QDialog>

#include <vector>

class QPushButton;
class QTreeWidget;

namespace quillon_ed {

/// Lists what a program that died left unsaved. Each entry is recovered, discarded, or left for later.
class RecoveryDialog : public QDialog {
    Q_OBJECT

public:
    RecoveryDialog(std::vector<zqbchwcx::reference::RecoverableJournal> journals, QWidget* parent);

signals:
    void recoverRequested(const zqbchwcx::reference::RecoverableJournal& journal);
    void discardRequested(const zqbchwcx::reference::RecoverableJournal& journal);

private:
    int CurrentIndex() const;
    void UpdateButtons();
    /// Takes the current entry off the list; the dialog closes with the last one.
    void Settle();

    std::vector<zqbchwcx::reference::RecoverableJournal> mcolJournals;
    QTreeWidget* moList;
    QPushButton* moRecover;
    QPushButton* moDiscard;
};

} // namespace quillon_ed
