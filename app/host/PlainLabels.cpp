#include "app/host/PlainLabels.h"

#include "app/host/PlainText.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QMessageBox>

namespace quillon_ed {

PlainLabels::PlainLabels()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool PlainLabels::eventFilter(QObject* watched, QEvent* event)
{
    // Comes once, before the size of a widget is asked for and before it is painted.
    if (event->type() != QEvent::Polish) return false;
    if (auto* box = qobject_cast<QMessageBox*>(watched); box && box->textFormat() == Qt::AutoText) {
        box->setTextFormat(Qt::PlainText);
        box->setText(BreakableText(box->text()));
        box->setInformativeText(BreakableText(box->informativeText()));
    } else if (auto* label = qobject_cast<QLabel*>(watched); label && label->textFormat() == Qt::AutoText) {
        label->setTextFormat(Qt::PlainText);
    }
    return false;
}

} // namespace quillon_ed
