#include "app/window/DistributedNote.h"

#include "app/host/SvgIcon.h"

#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon_ed {

DistributedNote::DistributedNote(QWidget* parent)
    : QWidget(parent), moHeading(new QLabel(this)), moText(new QLabel(this))
{
    auto* picture = new QLabel(this);
    picture->setPixmap(SvgIcon(QStringLiteral("note")).pixmap(32, 32));
    QFont bold = moHeading->font();
    bold.setBold(true);
    moHeading->setFont(bold);
    for (QLabel* label : {moHeading, moText}) {
        label->setWordWrap(true);
        label->setAlignment(Qt::AlignHCenter);
    }
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 24, 12, 24);
    column->setSpacing(8);
    column->addStretch(1);
    column->addWidget(picture, 0, Qt::AlignHCenter);
    column->addWidget(moHeading);
    column->addWidget(moText);
    column->addStretch(2);
    RetranslateUi();
}

void DistributedNote::RetranslateUi()
{
    moHeading->setText(tr("Distributed station"));
    moText->setText(tr("Its picture is not part of this version yet. The list beside it shows every place: select one "
                       "there, then insert modules from the catalogue, cut, copy, paste, delete or edit them."));
}

void DistributedNote::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) RetranslateUi();
}

} // namespace quillon_ed
