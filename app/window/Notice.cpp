#include "app/window/Notice.h"

#include <QAccessibleWidget>

namespace quillon_ed {
namespace {

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object)
{
    auto* notice = qobject_cast<Notice*>(object);
    return notice == nullptr ? nullptr : new QAccessibleWidget(notice, QAccessible::Notification);
}

} // namespace

Notice::Notice(int milliseconds, QWidget* parent) : QLabel(parent)
{
    [[maybe_unused]] static const bool isInstalled = (QAccessible::installFactory(MakeInterface), true);
    setTextFormat(Qt::PlainText);
    hide();
    mGoes.setSingleShot(true);
    mGoes.setInterval(milliseconds);
    connect(&mGoes, &QTimer::timeout, this, &QWidget::hide);
}

void Notice::Tell(const QString& text)
{
    // Screen readers hear of what comes, not of what changes.
    const QSignalBlocker silence(this);
    hide();
    setText(text);
    setAccessibleName(text);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    mGoes.start();
}

void Notice::hideEvent(QHideEvent* event)
{
    QLabel::hideEvent(event);
    mGoes.stop();
    emit gone();
}

} // namespace quillon_ed
