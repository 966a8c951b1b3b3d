#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"

#include <QLocale>
#include <QString>

#include <optional>

namespace quillon_ed {

/// What a typed text means: a value, or the reason why it is none.
struct ParsedParameter {
    std::optional<zqbchwcx::reference::ParameterValue> value;
    QString reason;
};

/// The text that a value of a number or text parameter is edited as. A value of another kind than the parameter's is
/// shown as what it is.
QString FormatParameter(const zqbchwcx::reference::ParameterValue& value, const QLocale& locale);

/// Reads what was typed for a number or text parameter. Real numbers may be typed with the locale's decimal separator
/// or with a point.
ParsedParameter ParseParameter(const zqbchwcx::reference::ParameterDefinition& definition, const QString& text,
                               const QLocale& locale);

/// "1 … 100 ms": the range and unit to show behind the input; empty when there is nothing to say.
QString RangeNote(const zqbchwcx::reference::ParameterDefinition& definition, const QLocale& locale);

/// An optional address; no text means none.
struct ParsedAddress {
    std::optional<std::int32_t> address;
    QString reason;
};
ParsedAddress ParseAddress(const QString& text, std::int32_t bytes);

} // namespace quillon_ed
