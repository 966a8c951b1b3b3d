#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace quillon_ed {

/// Opens the first local file that is dropped anywhere on the window, whatever lies there, when the drop is over.
void OpenDroppedFiles(QWidget& window, std::function<void(const QString& file)> open);

} // namespace quillon_ed
