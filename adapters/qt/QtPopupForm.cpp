#include "zqbchwcx/qt/QtPopupForm.h"

#include "zqbchwcx/qt/ControlWidget.h"
#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/WindowHandle.h"

#include <QFontMetrics>
#include <QGuiApplication>
#include <QScreen>

namespace zqbchwcx::qt {
namespace {

/// Above and below a text, so that lines do not touch each other.
constexpr int LineAir = 2;

const ControlWidget* ControlOf(const PopupFormWidget& form)
{
    return qobject_cast<const ControlWidget*>(form.parentWidget());
}

} // namespace

QtPopupForm::~QtPopupForm()
{
    if (!mWidget) return;
    // It may end in the middle of an event of its window.
    mWidget->Receiver(nullptr);
    mWidget->hide();
    mWidget->setObjectName({});
    mWidget->deleteLater();
}

void QtPopupForm::Events(PopupFormEvents* receiver)
{
    if (mWidget) mWidget->Receiver(receiver);
}

void QtPopupForm::Show(const Rect& onScreen)
{
    if (!mWidget) return;
    if (const ControlWidget* control = ControlOf(*mWidget)) {
        mWidget->Picture().Font(control->TextFont());
        mWidget->Picture().Ratio(control->Ratio());
    }
    mWidget->ShowAt({onScreen.left, onScreen.top, onScreen.width(), onScreen.height()});
    mWidget->Picture().BackColor(vxColorWindowBackground);
}

void QtPopupForm::Hide()
{
    if (mWidget) mWidget->hide();
}

void QtPopupForm::Tell(std::string_view text)
{
    if (mWidget) mWidget->Tell(ToQString(text));
}

bool QtPopupForm::Visible() const
{
    return mWidget && mWidget->isVisible();
}

Size QtPopupForm::ScaleSize() const
{
    return mWidget ? mWidget->Picture().LogicalSize() : Size{};
}

std::int32_t QtPopupForm::TextHeight() const
{
    const ControlWidget* control = mWidget ? ControlOf(*mWidget) : nullptr;
    return control != nullptr ? QFontMetrics(control->TextFont()).height() + LineAir : 0;
}

Rect QtPopupForm::WorkArea(Point onScreen) const
{
    const QScreen* screen = QGuiApplication::screenAt({onScreen.x, onScreen.y});
    if (screen == nullptr) screen = mWidget ? mWidget->screen() : QGuiApplication::primaryScreen();
    if (screen == nullptr) return {};
    const QRect area = screen->availableGeometry();
    return MakeRect(area.x(), area.y(), area.width(), area.height());
}

std::intptr_t QtPopupForm::hWnd() const
{
    return HandleOf(mWidget.data());
}

} // namespace zqbchwcx::qt
