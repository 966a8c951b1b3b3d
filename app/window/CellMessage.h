#pragma once

#include <QLabel>
#include <QTimer>

namespace quillon_ed {

/// A note at a cell: what was typed and why it was not taken. It goes after a while, or when
/// another one comes, and lets presses of the mouse through to what it covers.
class CellMessage : public QLabel {
    Q_OBJECT

public:
    explicit CellMessage(QWidget* parent);

    /// Below the rectangle, which is in pixels of the screen, or above it where the parent ends.
    void Tell(const QString& text, const QRect& cellOnScreen);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer mGoes;
};

} // namespace quillon_ed
