#include "app/window/CellMessage.h"

#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace quillon_ed {
namespace {

constexpr int StaysMilliseconds = 6000;
constexpr int Margin = 6;
constexpr int Stripe = 3;
constexpr int Width = 320;
constexpr QColor StripeColor(200, 40, 40);

} // namespace

CellMessage::CellMessage(QWidget* parent) : Notice(StaysMilliseconds, parent)
{
    setObjectName(QStringLiteral("cellMessage"));
    setWordWrap(true);
    setContentsMargins(Margin + Stripe, Margin, Margin, Margin);
    setPalette(QToolTip::palette());
    setBackgroundRole(QPalette::ToolTipBase);
    setForegroundRole(QPalette::ToolTipText);
    setAutoFillBackground(true);
    setAttribute(Qt::WA_TransparentForMouseEvents); // what it covers can be pressed
}

void CellMessage::TellAt(const QRect& cellOnScreen, const QString& text)
{
    setText(text);
    const QRect cell(parentWidget()->mapFromGlobal(cellOnScreen.topLeft()), cellOnScreen.size());
    const QRect room = parentWidget()->rect();
    const int width = std::min(Width, room.width());
    resize(width, heightForWidth(width));
    const int below = cell.bottom() + 2;
    const int top = below + height() <= room.bottom() ? below : std::max(cell.top() - height() - 1, 0);
    move(std::clamp(cell.left(), 0, std::max(room.width() - width, 0)), top);
    raise();
    Tell(text);
}

void CellMessage::paintEvent(QPaintEvent* event)
{
    QLabel::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.fillRect(0, 0, Stripe, height(), StripeColor);
}

} // namespace quillon_ed
