#pragma once

class QWidget;

namespace quillon_ed {

/// Lists what keyboard and mouse do.
void ShowShortcuts(QWidget* parent);

} // namespace quillon_ed
