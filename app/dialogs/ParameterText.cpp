#include "app/dialogs/ParameterText.h"

#include "app/host/PlainText.h"
#include "app/host/Strings.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace quillon_ed {

using namespace zqbchwcx::reference;

namespace {

struct ParameterTexts {
    Q_DECLARE_TR_FUNCTIONS(quillon_ed::ParameterText)
};

QString FormatReal(double value, const QLocale& locale)
{
    QLocale plain(locale);
    plain.setNumberOptions(QLocale::OmitGroupSeparator);
    return plain.toString(value, 'g', QLocale::FloatingPointShortest);
}

std::optional<double> ReadReal(const QString& text, const QLocale& locale)
{
    QLocale strict(locale);
    strict.setNumberOptions(QLocale::RejectGroupSeparator);
    bool read = false;
    double value = strict.toDouble(text, &read);
    if (!read) value = QLocale::c().toDouble(text, &read);
    if (!read || !std::isfinite(value)) return std::nullopt;
    return value;
}

ParsedParameter OutOfRange(const ParameterDefinition& definition, const QLocale& locale)
{
    return {std::nullopt, ParameterTexts::tr("Between %1 and %2")
                              .arg(FormatReal(definition.minimum, locale), FormatReal(definition.maximum, locale))};
}

bool InRange(const ParameterDefinition& definition, double value)
{
    return value >= definition.minimum && value <= definition.maximum;
}

ParsedParameter ParseInteger(const ParameterDefinition& definition, const QString& text, const QLocale& locale)
{
    bool read = false;
    const qlonglong value = QLocale::c().toLongLong(text, &read);
    if (!read) return {std::nullopt, ParameterTexts::tr("A whole number is needed")};
    if (!InRange(definition, static_cast<double>(value))) return OutOfRange(definition, locale);
    return {std::int64_t{value}, {}};
}

ParsedParameter ParseReal(const ParameterDefinition& definition, const QString& text, const QLocale& locale)
{
    const auto value = ReadReal(text, locale);
    if (!value) return {std::nullopt, ParameterTexts::tr("A number is needed")};
    if (!InRange(definition, *value)) return OutOfRange(definition, locale);
    return {*value, {}};
}

ParsedParameter ParseText(const ParameterDefinition& definition, const QString& text)
{
    std::string value = text.toStdString();
    if (value.size() > MaxTextBytes) {
        return {std::nullopt, ParameterTexts::tr("Longer than %n byte(s)", nullptr, static_cast<int>(MaxTextBytes))};
    }
    const auto length = static_cast<double>(text.toUcs4().size());
    if (length < definition.minimum) {
        return {std::nullopt,
                ParameterTexts::tr("At least %n character(s)", nullptr, static_cast<int>(definition.minimum))};
    }
    if (definition.maximum > 0 && length > definition.maximum) {
        return {std::nullopt,
                ParameterTexts::tr("At most %n character(s)", nullptr, static_cast<int>(definition.maximum))};
    }
    return {std::move(value), {}};
}

} // namespace

QString FormatParameter(const ParameterValue& value, const QLocale& locale)
{
    struct Formatter {
        const QLocale& locale;
        QString operator()(bool on) const { return on ? QStringLiteral("true") : QStringLiteral("false"); }
        QString operator()(std::int64_t number) const { return QString::number(number); }
        QString operator()(double number) const { return FormatReal(number, locale); }
        QString operator()(const std::string& text) const { return ToQString(text); }
    };
    return std::visit(Formatter{locale}, value);
}

ParsedParameter ParseParameter(const ParameterDefinition& definition, const QString& text, const QLocale& locale)
{
    switch (definition.kind) {
    case ParameterKind::Integer:
        return ParseInteger(definition, text.trimmed(), locale);
    case ParameterKind::Real:
        return ParseReal(definition, text.trimmed(), locale);
    default:
        return ParseText(definition, text);
    }
}

QString RangeNote(const ParameterDefinition& definition, const QLocale& locale)
{
    const bool number = definition.kind == ParameterKind::Integer || definition.kind == ParameterKind::Real;
    if (!number) return PlainText(definition.unit);
    const QString range =
        QStringLiteral("%1 … %2").arg(FormatReal(definition.minimum, locale), FormatReal(definition.maximum, locale));
    return definition.unit.empty() ? range : range + u' ' + PlainText(definition.unit);
}

ParsedAddress ParseAddress(const QString& text, std::int32_t bytes)
{
    const QString trimmed = text.trimmed();
    bool read = false;
    const int address = trimmed.toInt(&read);
    const std::int32_t last = MaxAddress - std::max(bytes, 1) + 1;
    if (!read) return {std::nullopt, ParameterTexts::tr("A whole number is needed")};
    if (address < 0 || address > last) {
        return {std::nullopt, ParameterTexts::tr("Between %1 and %2").arg(0).arg(last)};
    }
    return {address, {}};
}

} // namespace quillon_ed
