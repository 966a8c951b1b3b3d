#include "zqbchwcx/qt/ViewWidget.h"

#include "zqbchwcx/qt/ControlWidget.h"

#include <QEvent>

namespace zqbchwcx::qt {

ViewWidget::ViewWidget(QWidget* parent, const QString& objectName, QSize smallest, QSize comfortable)
    : QWidget(parent), mSmallest(smallest), mComfortable(comfortable),
      mWindow(*new ControlWidget(this, ControlWidget::Backdrop::Own))
{
    setObjectName(objectName);
    setMinimumSize(smallest);
    setFocusProxy(&mWindow);
}

void ViewWidget::Begin()
{
    RetranslateUi();
    resize(mComfortable);
    mWindow.ResizeNow(size());
    mWindow.show();
}

void ViewWidget::Name(const QString& name, const QString& description)
{
    setAccessibleName(name);
    setAccessibleDescription(description);
    QWidget* keyboard = mWindow.focusProxy();
    if (keyboard == nullptr) return;
    // It may lie in a control within the view's control.
    while (keyboard->focusProxy() != nullptr) keyboard = keyboard->focusProxy();
    keyboard->setAccessibleName(name);
    keyboard->setAccessibleDescription(description);
}

void ViewWidget::resizeEvent(QResizeEvent* /*event*/)
{
    mWindow.ResizeNow(size());
}

void ViewWidget::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
}

} // namespace zqbchwcx::qt
