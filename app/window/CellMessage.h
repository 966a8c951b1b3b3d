#pragma once

#include <QLabel>
#include <QTimer>

namespace quillon_ed {

/// A note at a cell: what was typed and why it was not taken. It goes after a while, with a press of the mouse on it,
/// or when another one comes.
class CellMessage : public QLabel {
    Q_OBJECT

public:
    explicit CellMessage(QWidget* parent);

    /// Below the rectangle, which is in pixels of the screen, or above it where the parent ends.
    void Tell(const QString& text, const QRect& cellOnScreen);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    QTimer mGoes;
};

} // namespace quillon_ed
