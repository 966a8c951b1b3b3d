#pragma once

class QWidget;

namespace quillon_ed {

/// Says what the program is, its version and its licence.
void ShowAbout(QWidget* parent);

} // namespace quillon_ed
