#pragma once

#include <QObject>
#include <QPalette>

#include <initializer_list>

namespace quillon_ed {

/// The colour, brought as near to the ink as it takes to be read on every one of the grounds: at a contrast of 4.5 : 1
/// at least.
QColor ReadableColor(const QColor& color, const QColor& ink, std::initializer_list<QColor> grounds);

/// The palette with every text readable on what it is written on: hints, what is disabled, what is selected.
QPalette ReadablePalette(QPalette palette);

/// Keeps the desktop's palette readable, whenever it changes, for as long as this lives.
class ReadableColors : public QObject {
public:
    ReadableColors();

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace quillon_ed
