#include "zqbchwcx/qt/PopupFormWidget.h"

#include "zqbchwcx/qt/AccessibleFocus.h"
#include "zqbchwcx/qt/InputTranslation.h"
#include "zqbchwcx/qt/PlainText.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>

namespace zqbchwcx::qt {
namespace {

constexpr qsizetype LongestTold = 400;

} // namespace

PopupFormWidget::PopupFormWidget(QWidget& parent, const QString& name)
    : PictureWidget(parent, Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus, {})
{
    setObjectName(name);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
}

void PopupFormWidget::ShowAt(const QRect& onScreen)
{
    setGeometry(onScreen);
    Picture().Resize({onScreen.width(), onScreen.height()});
    // The parent may have come into another window since it was last shown.
    parentWidget()->window()->removeEventFilter(this);
    parentWidget()->window()->installEventFilter(this);
    show();
}

void PopupFormWidget::Tell(const QString& text)
{
    setAccessibleName(PlainText(text, LongestTold));
    TellFocus(*this);
}

void PopupFormWidget::hideEvent(QHideEvent* event)
{
    PictureWidget::hideEvent(event);
    if (accessibleName().isEmpty()) return;
    setAccessibleName({});
    if (QWidget* widget = QApplication::focusWidget()) TellFocus(*widget);
}

bool PopupFormWidget::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Hide:
    case QEvent::WindowStateChange:
    case QEvent::Close:
        break;
    default:
        return false;
    }
    if (isVisible() && watched == parentWidget()->window()) {
        hide();
        if (mReceiver != nullptr) mReceiver->Closed();
    }
    return false;
}

void PopupFormWidget::mousePressEvent(QMouseEvent* event)
{
    TellDown(*event);
}

void PopupFormWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    const QPointer<PopupFormWidget> self(this);
    TellDown(*event);
    if (self && mReceiver != nullptr && event->button() == Qt::LeftButton) mReceiver->DblClick();
}

void PopupFormWidget::TellDown(const QMouseEvent& event)
{
    const QPointF at = ToPixel(event.position());
    if (mReceiver != nullptr)
        mReceiver->MouseDown(ToButtons(event.button()), ToShift(event.modifiers()), {int(at.x()), int(at.y())});
}

} // namespace zqbchwcx::qt
