#include "zqbchwcx/qt/ShapeWidget.h"

#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/DevicePainting.h"
#include "zqbchwcx/qt/SystemColors.h"

#include <QPainter>

namespace zqbchwcx::qt {

ShapeWidget::ShapeWidget(QWidget& parent, const QString& name, const Rect& rect, OleColor color)
    : QWidget(&parent), mColor(color)
{
    setObjectName(name);
    setGeometry(rect.left, rect.top, rect.width(), rect.height());
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

QColor ShapeWidget::FillColor() const
{
    const QWidget* control = parentWidget();
    while (control != nullptr && qobject_cast<const ControlWidget*>(control->parentWidget()) != nullptr)
        control = control->parentWidget();
    const auto* outermost = qobject_cast<const ControlWidget*>(control);
    return ReadableOn(mColor, outermost != nullptr ? outermost->BackgroundColor() : palette().color(QPalette::Base));
}

void ShapeWidget::paintEvent(QPaintEvent* /*event*/)
{
    QPainter(this).fillRect(rect(), FillColor());
}

} // namespace zqbchwcx::qt
