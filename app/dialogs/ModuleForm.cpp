#include "app/dialogs/ModuleForm.h"

#include "app/dialogs/FormField.h"
#include "app/host/PlainText.h"
#include "app/host/Strings.h"

#include <QFormLayout>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

QLabel* Heading(const QString& text)
{
    auto* label = new QLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setContentsMargins(0, 8, 0, 2);
    return label;
}

ParsedParameter ReadText(const QLineEdit& edit)
{
    ParameterDefinition anyText;
    anyText.kind = ParameterKind::Text;
    return ParseParameter(anyText, edit.text(), QLocale::c());
}

} // namespace

ModuleForm::ModuleForm(const ModuleType& type, const ModuleData& module, Language language, AddressCheck addressCheck,
                       QWidget* parent)
    : QWidget(parent), moModule(module), moAddressCheck(std::move(addressCheck)),
      moLocale(language == Language::German ? QLocale::German : QLocale::English)
{
    auto* form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->setRowWrapPolicy(QFormLayout::WrapLongRows);
    AddGeneral(*form, type);
    if (!type.parameters.empty()) form->addRow(Heading(tr("Parameters")));
    mcolParameters.reserve(type.parameters.size());
    for (const ParameterDefinition& definition : type.parameters) AddParameter(*form, definition, language);
    Check();
}

void ModuleForm::AddGeneral(QFormLayout& form, const ModuleType& type)
{
    form.addRow(Heading(tr("General")));
    const auto addLine = [&](const QString& label, const std::string& text, QLineEdit*& edit, FormField*& field) {
        edit = new QLineEdit(ToQString(text));
        edit->setAccessibleName(label);
        field = new FormField(edit, {}, this);
        form.addRow(label + u':', field);
        connect(edit, &QLineEdit::textChanged, this, &ModuleForm::Check);
    };
    addLine(tr("Name"), moModule.name, moName, moNameField);
    moName->setPlaceholderText(
        PlainText(type.name, moLocale.language() == QLocale::German ? Language::German : Language::English));
    setFocusProxy(moName);
    addLine(tr("Comment"), moModule.comment, moComment, moCommentField);
    AddAddress(form, AddressArea::Input, tr("Input address"), type);
    AddAddress(form, AddressArea::Output, tr("Output address"), type);
}

void ModuleForm::AddAddress(QFormLayout& form, AddressArea area, const QString& label, const ModuleType& type)
{
    const std::int32_t bytes = BytesIn(area, type);
    if (bytes <= 0) return;
    const auto& address = AddressIn(area, moModule);
    auto* edit = new QLineEdit(address ? QString::number(*address) : QString());
    edit->setAccessibleName(label);
    auto* field = new FormField(edit, tr("%n byte(s)", nullptr, bytes), this);
    form.addRow(label + u':', field);
    connect(edit, &QLineEdit::textChanged, this, &ModuleForm::Check);
    mcolAddresses.push_back({area, bytes, edit, field});
}

void ModuleForm::AddParameter(QFormLayout& form, const ParameterDefinition& definition, Language language)
{
    const std::size_t index = mcolParameters.size();
    ValueInput input = MakeValueInput(definition, language, moLocale, [this] { Check(); });
    const auto stored = moModule.parameters.find(definition.key);
    input.write(stored == moModule.parameters.end() ? definition.defaultValue : stored->second);
    auto* field = new FormField(input.widget, RangeNote(definition, moLocale), this);
    connect(field, &FormField::resetRequested, this, [this, index] {
        const ParameterLine& line = mcolParameters[index];
        line.input.write(line.definition->defaultValue);
        line.input.widget->setFocus();
    });
    auto* label = new QLabel(WithoutMnemonic(PlainText(definition.label, language)) + u':', this);
    label->setToolTip(ToolTipText(ToQString(definition.help, language)));
    label->setBuddy(input.widget);
    form.addRow(label, field);
    mcolParameters.push_back({&definition, std::move(input), field});
}

QString ModuleForm::AddressReason(const AddressLine& line) const
{
    const ParsedAddress parsed = ParseAddress(line.edit->text(), line.bytes);
    if (!parsed.address) return parsed.reason;
    return moAddressCheck ? moAddressCheck(line.area, *parsed.address, line.bytes) : QString();
}

void ModuleForm::Check()
{
    mbValid = true;
    mbDefaults = true;
    const auto show = [this](FormField* field, const QString& reason) {
        field->ShowReason(reason);
        mbValid = mbValid && reason.isEmpty();
    };
    show(moNameField, ReadText(*moName).reason);
    show(moCommentField, ReadText(*moComment).reason);
    for (const AddressLine& line : mcolAddresses) show(line.field, AddressReason(line));
    for (const ParameterLine& line : mcolParameters) {
        const ParsedParameter parsed = line.input.read();
        show(line.field, parsed.reason);
        const bool isDefault = parsed.value == line.definition->defaultValue;
        line.field->ShowResettable(!isDefault);
        mbDefaults = mbDefaults && isDefault;
    }
    emit changed();
}

bool ModuleForm::IsValid() const
{
    return mbValid;
}

bool ModuleForm::HasDefaults() const
{
    return mbDefaults;
}

void ModuleForm::Reset()
{
    for (const ParameterLine& line : mcolParameters) line.input.write(line.definition->defaultValue);
}

ModuleData ModuleForm::Result() const
{
    ModuleData result = moModule;
    result.name = moName->text().toStdString();
    result.comment = moComment->text().toStdString();
    for (const AddressLine& line : mcolAddresses) {
        AddressIn(line.area, result) = ParseAddress(line.edit->text(), line.bytes).address;
    }
    for (const ParameterLine& line : mcolParameters) {
        ParsedParameter parsed = line.input.read();
        if (parsed.value == line.definition->defaultValue) result.parameters.erase(line.definition->key);
        else if (parsed.value) result.parameters[line.definition->key] = std::move(*parsed.value);
    }
    return result;
}

} // namespace quillon_ed
