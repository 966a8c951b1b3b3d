#pragma once

#include <QLabel>
#include <QTimer>

namespace quillon_ed {

/// A plain text that shows for a while, in whatever place it is given. Screen readers read it out when it comes.
class Notice : public QLabel {
    Q_OBJECT

public:
    /// Not shown yet.
    Notice(int milliseconds, QWidget* parent);

    void Tell(const QString& text);

signals:
    void gone();

protected:
    void hideEvent(QHideEvent* event) override;

private:
    QTimer mGoes;
};

} // namespace quillon_ed
