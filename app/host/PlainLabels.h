#pragma once

#include <QObject>

namespace quillon_ed {

/// Keeps the toolkit from guessing that a text is HTML: for as long as this lives, every label and tooltip of the
/// program, and every question and message, shows plain text unless it says that its text is rich.
class PlainLabels : public QObject {
public:
    PlainLabels();

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quillon_ed
