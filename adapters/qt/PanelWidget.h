#pragma once

#include "zqbchwcx/qt/ControlWidget.h"

namespace zqbchwcx::qt {

/// The window of a panel: a frame on the desktop's ground around what lies in it, and an edge around each grid.
class PanelWidget : public ControlWidget {
    Q_OBJECT
public:
    PanelWidget(ControlWidget& parent, const QString& name);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace zqbchwcx::qt
