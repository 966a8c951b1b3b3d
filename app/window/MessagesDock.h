#pragma once

#include "zqbchwcx/reference/services/ErrorLog.h"

#include <QDockWidget>

class QPushButton;
class QTreeWidget;

namespace quillon_ed {

/// What went wrong, newest last. Hidden until there is something to say.
class MessagesDock : public QDockWidget {
    Q_OBJECT

public:
    /// The log outlives the dock.
    MessagesDock(zqbchwcx::reference::ErrorLog& log, QWidget* parent);

    /// A message of the window itself.
    void Add(const QString& text, const QString& source = {});

protected:
    void changeEvent(QEvent* event) override;

private:
    void RetranslateUi();
    void Clear();

    zqbchwcx::reference::ErrorLog& moLog;
    zqbchwcx::EventConnection moEntryAdded;
    QTreeWidget* moList;
    QPushButton* moClear;
};

} // namespace quillon_ed
