#pragma once

#include <QAccessible>
#include <QWidget>

namespace zqbchwcx::qt {

/// Tells screen readers where the keyboard is: in the part of the widget that has it, if the widget names one.
inline void TellFocus(QWidget& widget)
{
    if (!QAccessible::isActive()) return;
    QAccessibleInterface* focused = QAccessible::queryAccessibleInterface(&widget);
    if (QAccessibleInterface* part = focused->focusChild()) focused = part;
    QAccessibleEvent event(focused, QAccessible::Focus);
    QAccessible::updateAccessibility(&event);
}

} // namespace zqbchwcx::qt
