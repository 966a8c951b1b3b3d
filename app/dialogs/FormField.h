#pragma once

#include <QWidget>

class QLabel;
class QToolButton;

namespace quillon_ed {

/// One input of a form: the editor, a note behind it, a button that puts the default back, and the reason below it
/// while what was typed is not valid.
class FormField : public QWidget {
    Q_OBJECT

public:
    /// Takes the editor over.
    FormField(QWidget* editor, const QString& note, QWidget* parent);

    /// An empty reason means that the content is valid.
    void ShowReason(const QString& reason);
    /// Whether the content differs from the default, so that the button has something to do.
    void ShowResettable(bool resettable);

signals:
    void resetRequested();

protected:
    void changeEvent(QEvent* event) override;

private:
    QWidget* moEditor;
    QLabel* moReason;
    QToolButton* moReset;
};

} // namespace quillon_ed
