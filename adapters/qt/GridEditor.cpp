#include "zqbchwcx/qt/GridEditor.h"

#include "zqbchwcx/qt/GridDelegate.h"

#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace zqbchwcx::qt {
namespace {

/// Undoing is the host's business: the editor only writes before.
bool IsHistoryKey(const QKeyEvent& event)
{
    return event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo) ||
           (event.modifiers() == Qt::ControlModifier && (event.key() == Qt::Key_Z || event.key() == Qt::Key_Y));
}

bool IsOwnKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Up:
    case Qt::Key_Down:
        return (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier)) == 0;
    default:
        return false;
    }
}

} // namespace

GridEditor::GridEditor(QWidget& parent, GridCell cell, const QFont& font) : QLineEdit(&parent), mCell(cell)
{
    setObjectName(QStringLiteral("gridEditor"));
    setFrame(false);
    setFont(font);
    setTextMargins(GridDelegate::Padding - 2, 0, 0, 0); // the line itself has two more
    connect(this, &QLineEdit::textChanged, this, &GridEditor::Grow);
}

void GridEditor::Place(const QRect& cell, const QRect& room)
{
    mCellRect = cell;
    mRoom = room.united(cell);
    Grow();
}

void GridEditor::Show(const QString& text)
{
    setText(text);
    selectAll();
}

void GridEditor::Grow()
{
    const int wanted = fontMetrics().horizontalAdvance(text() + msComposed) + 2 * GridDelegate::Padding + 2;
    const int width = std::clamp(wanted, mCellRect.width(), mRoom.width());
    const int left = std::min(mCellRect.left(), mRoom.right() + 1 - width);
    setGeometry(left, mCellRect.top(), width, mCellRect.height());
}

bool GridEditor::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto& key = static_cast<QKeyEvent&>(*event);
        if (IsHistoryKey(key)) {
            // The host's shortcut is to find the text written; when there is none, the key comes here once more.
            bool bConsumed = false;
            mbTold = true;
            emit keyPressed(&key, &bConsumed);
            event->setAccepted(bConsumed);
            return true;
        }
        if (IsOwnKey(key)) {
            event->accept();
            return true;
        }
    }
    // Tab would move the focus before anybody is asked.
    if (event->type() == QEvent::KeyPress) {
        keyPressEvent(static_cast<QKeyEvent*>(event));
        return true;
    }
    return QLineEdit::event(event);
}

void GridEditor::keyPressEvent(QKeyEvent* event)
{
    event->accept();
    bool bConsumed = false;
    if (!std::exchange(mbTold, false) || !IsHistoryKey(*event)) emit keyPressed(event, &bConsumed);
    if (bConsumed || IsHistoryKey(*event)) return;
    switch (event->key()) {
    case Qt::Key_Escape:
        emit closed(false);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        emit closed(true);
        return;
    default:
        // What the line does not use is not for the grid below it either.
        QLineEdit::keyPressEvent(event);
        event->accept();
    }
}

void GridEditor::keyReleaseEvent(QKeyEvent* event)
{
    emit keyReleased(event);
    event->accept();
}

void GridEditor::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) emit closed(true);
}

void GridEditor::inputMethodEvent(QInputMethodEvent* event)
{
    msComposed = event->preeditString();
    QLineEdit::inputMethodEvent(event);
    Grow();
}

void GridEditor::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace zqbchwcx::qt
