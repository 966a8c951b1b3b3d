#include "app/dialogs/ValueInput.h"

#include "app/host/PlainText.h"
#include "app/host/Strings.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QLineEdit>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

struct InputTexts {
    Q_DECLARE_TR_FUNCTIONS(quillon_ed::ValueInput)
};

ValueInput MakeCheckBox(const std::function<void()>& changed)
{
    auto* box = new QCheckBox;
    QObject::connect(box, &QCheckBox::toggled, box, [changed] { changed(); });
    return {box,
            [box] {
                return ParsedParameter{box->isChecked(), {}};
            },
            [box](const ParameterValue& value) {
                const bool* on = std::get_if<bool>(&value);
                box->setChecked(on && *on);
            }};
}

/// A stored key that the type does not offer is shown as it is, and stays until another one is chosen.
ValueInput MakeList(const ParameterDefinition& definition, Language language, const QLocale& locale,
                    const std::function<void()>& changed)
{
    auto* list = new QComboBox;
    // As wide as there is room; what it opens shows the choices whole.
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    for (const ParameterChoice& choice : definition.choices) {
        list->addItem(PlainText(choice.label, language), ToQString(choice.key));
    }
    const int offered = list->count();
    QObject::connect(list, &QComboBox::currentIndexChanged, list, [changed] { changed(); });
    const auto read = [list, offered]() -> ParsedParameter {
        if (list->currentIndex() < 0 || list->currentIndex() >= offered) {
            return {std::nullopt, InputTexts::tr("Not one of the choices")};
        }
        return {list->currentData().toString().toStdString(), {}};
    };
    const auto write = [list, offered, locale](const ParameterValue& value) {
        const QString key = FormatParameter(value, locale);
        int index = list->findData(key);
        if (index < 0) {
            if (list->count() > offered) list->removeItem(offered);
            list->addItem(PlainText(key), key);
            index = offered;
        }
        list->setCurrentIndex(index);
    };
    return {list, read, write};
}

ValueInput MakeLine(const ParameterDefinition& definition, const QLocale& locale, const std::function<void()>& changed)
{
    auto* line = new QLineEdit;
    QObject::connect(line, &QLineEdit::textChanged, line, [changed] { changed(); });
    return {line, [line, &definition, locale] { return ParseParameter(definition, line->text(), locale); },
            [line, locale](const ParameterValue& value) { line->setText(FormatParameter(value, locale)); }};
}

} // namespace

ValueInput MakeValueInput(const ParameterDefinition& definition, Language language, const QLocale& locale,
                          const std::function<void()>& changed)
{
    ValueInput input;
    switch (definition.kind) {
    case ParameterKind::Boolean:
        input = MakeCheckBox(changed);
        break;
    case ParameterKind::Choice:
        input = MakeList(definition, language, locale, changed);
        break;
    default:
        input = MakeLine(definition, locale, changed);
        break;
    }
    input.widget->setToolTip(ToolTipText(ToQString(definition.help, language)));
    input.widget->setAccessibleName(PlainText(definition.label, language));
    return input;
}

} // namespace quillon_ed
