#pragma once

#include "app/window/Notice.h"

namespace quillon_ed {

/// A note at a cell: what was typed and why it was not taken. It goes after a while, or when another one comes, and
/// lets presses of the mouse through to what it covers.
class CellMessage : public Notice {
    Q_OBJECT

public:
    explicit CellMessage(QWidget* parent);

    /// Below the rectangle, which is in pixels of the screen, or above it where the parent ends.
    void TellAt(const QRect& cellOnScreen, const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace quillon_ed
