#include "zqbchwcx/qt/PanelWidget.h"

#include "zqbchwcx/qt/GridColors.h"
#include "zqbchwcx/qt/GridWidget.h"

#include <QPainter>

namespace zqbchwcx::qt {

PanelWidget::PanelWidget(ControlWidget& parent, const QString& name) : ControlWidget(&parent, Backdrop::Parent)
{
    setObjectName(name);
    TextFont(parent.TextFont());
    setFont(parent.TextFont()); // its labels, boxes and buttons take it from here
    HoldsInput();
}

void PanelWidget::paintEvent(QPaintEvent* event)
{
    ControlWidget::paintEvent(event);
    constexpr double LineShare = 0.25;
    const QColor ground = palette().color(QPalette::Window);
    QPainter painter(this);
    painter.fillRect(rect(), ground);
    painter.setPen(Mixed(ground, palette().color(QPalette::WindowText), LineShare));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    for (const auto* grid : findChildren<GridWidget*>(QString(), Qt::FindDirectChildrenOnly))
        painter.drawRect(grid->geometry().adjusted(-1, -1, 0, 0));
}

} // namespace zqbchwcx::qt
