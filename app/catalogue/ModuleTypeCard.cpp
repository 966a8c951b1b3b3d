#include "app/catalogue/ModuleTypeCard.h"

#include "app/host/PlainText.h"
#include "app/host/Strings.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

QString FactRow(const QString& name, const QString& value)
{
    return QStringLiteral("<tr><td style='padding-right:12px'>%1</td><td>%2</td></tr>")
        .arg(name.toHtmlEscaped(), value.toHtmlEscaped());
}

} // namespace

ModuleTypeCard::ModuleTypeCard(QWidget* parent)
    : QWidget(parent), moPicture(new QLabel(this)), moName(new QLabel(this)), moOrderNumber(new QLabel(this)),
      moDescription(new QLabel(this)), moFacts(new QLabel(this))
{
    QFont bold = moName->font();
    bold.setBold(true);
    moName->setFont(bold);
    moName->setWordWrap(true);
    moOrderNumber->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    moDescription->setWordWrap(true);
    moFacts->setTextFormat(Qt::RichText);
    moFacts->setWordWrap(true);

    auto* texts = new QVBoxLayout;
    texts->setSpacing(4);
    texts->addWidget(moName);
    texts->addWidget(moOrderNumber);
    texts->addWidget(moDescription);
    texts->addWidget(moFacts);
    texts->addStretch();
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(8, 8, 8, 8);
    line->setSpacing(12);
    line->addWidget(moPicture, 0, Qt::AlignTop);
    line->addLayout(texts, 1);
}

void ModuleTypeCard::ShowText(const QString& text, bool isHint)
{
    for (QLabel* label : {moPicture, moName, moOrderNumber, moFacts}) label->setHidden(isHint);
    moDescription->setForegroundRole(isHint ? QPalette::PlaceholderText : QPalette::WindowText);
    moDescription->setText(text);
}

void ModuleTypeCard::ShowHint(const QString& text)
{
    ShowText(text, true);
}

void ModuleTypeCard::Show(const ModuleType& type, const QPixmap& picture, Language language)
{
    ShowText(PlainText(type.description, language, LongestDescription), false);
    moPicture->setPixmap(picture);
    moName->setText(PlainText(type.name, language));
    moOrderNumber->setText(PlainText(type.orderNumber));

    QString rows;
    if (type.placeCount > 1) rows += FactRow(tr("Places"), QString::number(type.placeCount));
    if (type.inputBytes > 0) rows += FactRow(tr("Inputs"), tr("%n byte(s)", nullptr, type.inputBytes));
    if (type.outputBytes > 0) rows += FactRow(tr("Outputs"), tr("%n byte(s)", nullptr, type.outputBytes));
    for (const auto& [name, value] : type.facts) {
        rows += FactRow(PlainText(name, language), PlainText(value, language));
    }
    moFacts->setText(QStringLiteral("<table cellspacing='0'>%1</table>").arg(rows));
}

} // namespace quillon_ed
