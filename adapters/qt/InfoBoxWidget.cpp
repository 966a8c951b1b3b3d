#include "zqbchwcx/qt/InfoBoxWidget.h"

#include "zqbchwcx/qt/PlainText.h"
#include "zqbchwcx/qt/SystemColors.h"

#include <QKeyEvent>
#include <QStringList>

namespace zqbchwcx::qt {
namespace {

constexpr qsizetype LongestLine = 400;
constexpr int TextMargin = 3;

} // namespace

InfoBoxWidget::InfoBoxWidget(QWidget& parent, const QString& name) : QPlainTextEdit(&parent)
{
    setObjectName(name);
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setContextMenuPolicy(Qt::DefaultContextMenu);
    document()->setDocumentMargin(TextMargin);
}

void InfoBoxWidget::ShowText(const QString& text)
{
    QStringList lines;
    for (const QString& line : QString(text).remove(u'\r').split(u'\n')) lines << PlainText(line, LongestLine);
    const QString shown = lines.join(u'\n');
    if (shown == toPlainText()) return;
    setPlainText(shown);
    setToolTip(ToolTipText(shown)); // it may be cut off
}

void InfoBoxWidget::Redraw()
{
    QPalette colors = palette();
    const QColor ground = ToGround(mBackColor).value_or(colors.color(QPalette::Base));
    const QColor text = ReadableOn(vxColorWindowText, ground);
    if (colors.color(QPalette::Base) != ground || colors.color(QPalette::Text) != text) {
        colors.setColor(QPalette::Base, ground);
        colors.setColor(QPalette::Text, text);
        setPalette(colors);
    }
    viewport()->update();
}

void InfoBoxWidget::Move(const Rect& rect)
{
    setGeometry(rect.left, rect.top, rect.width(), rect.height());
    const bool bSeveral = rect.height() >= 2 * (fontMetrics().lineSpacing() + TextMargin);
    setLineWrapMode(bSeveral ? WidgetWidth : NoWrap);
    setVerticalScrollBarPolicy(bSeveral ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

bool InfoBoxWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = static_cast<const QKeyEvent&>(*event);
        // The window has uses of its own for these.
        if (key.matches(QKeySequence::Copy) || key.matches(QKeySequence::SelectAll)) {
            event->accept();
            return true;
        }
    }
    return QPlainTextEdit::event(event);
}

} // namespace zqbchwcx::qt
