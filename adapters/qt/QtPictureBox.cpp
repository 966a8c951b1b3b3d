#include "zqbchwcx/qt/QtPictureBox.h"

#include "zqbchwcx/qt/WindowHandle.h"

namespace zqbchwcx::qt {

QtPictureBox::~QtPictureBox()
{
    delete mWidget.data();
}

void QtPictureBox::Events(PictureBoxEvents* receiver)
{
    if (mWidget) mWidget->Receiver(receiver);
}

std::int32_t QtPictureBox::Left() const
{
    return mWidget ? mWidget->x() : 0;
}

std::int32_t QtPictureBox::Top() const
{
    return mWidget ? mWidget->y() : 0;
}

Size QtPictureBox::ScaleSize() const
{
    return mWidget ? mWidget->Picture().LogicalSize() : Size{};
}

void QtPictureBox::Move(const Rect& rect)
{
    if (!mWidget) return;
    mWidget->setGeometry(rect.left, rect.top, rect.width(), rect.height());
    // A hidden window hears of its new size only when it is shown; its picture can be drawn on before.
    mWidget->Picture().Resize({rect.width(), rect.height()});
}

bool QtPictureBox::Visible() const
{
    return mWidget && !mWidget->isHidden();
}

void QtPictureBox::Visible(bool bVisible)
{
    if (mWidget) mWidget->setVisible(bVisible);
}

void QtPictureBox::BackColor(OleColor color)
{
    if (!mWidget) return;
    mWidget->Picture().BackColor(color);
    mWidget->parentWidget()->update();
}

void QtPictureBox::Refresh()
{
    if (mWidget) mWidget->ShowChanges();
}

bool QtPictureBox::HasFocus() const
{
    return mWidget && mWidget->hasFocus();
}

void QtPictureBox::SetFocus()
{
    if (mWidget) mWidget->setFocus(Qt::OtherFocusReason);
}

void QtPictureBox::OLEDrag()
{
    if (mWidget) mWidget->Drag();
}

std::intptr_t QtPictureBox::hWnd() const
{
    return HandleOf(mWidget.data());
}

} // namespace zqbchwcx::qt
