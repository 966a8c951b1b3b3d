#include "zqbchwcx/reference/catalogue/ParameterReader.h"

#include "zqbchwcx/reference/json/ParameterJson.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <set>

namespace zqbchwcx::reference {
namespace {

constexpr std::array KindNames{
    NamedValue<ParameterKind>{"boolean", ParameterKind::Boolean},
    NamedValue<ParameterKind>{"integer", ParameterKind::Integer},
    NamedValue<ParameterKind>{"real", ParameterKind::Real},
    NamedValue<ParameterKind>{"choice", ParameterKind::Choice},
    NamedValue<ParameterKind>{"text", ParameterKind::Text},
};

constexpr std::size_t MostChoices = 256;

bool HasRange(ParameterKind kind)
{
    return IsNumber(kind) || kind == ParameterKind::Text;
}

void ReadRange(const JsonCursor& cursor, ParameterDefinition& definition)
{
    for (const auto* name : {"minimum", "maximum"}) {
        const auto bound = cursor.OptionalMember(name);
        if (!bound) continue;
        if (!HasRange(definition.kind)) bound->Fail("parameters of this kind have no range");
        if (definition.kind != ParameterKind::Real && !bound->IsInteger()) bound->Fail("must be an integer");
    }
    if (!HasRange(definition.kind)) return;

    definition.maximum = cursor.Member("maximum").Real();
    if (const auto minimum = cursor.OptionalMember("minimum")) definition.minimum = minimum->Real();
    else if (definition.kind != ParameterKind::Text) cursor.Member("minimum");
    if (definition.minimum > definition.maximum) cursor.Member("minimum").Fail("is greater than the maximum");
    if (definition.kind == ParameterKind::Text &&
        (definition.minimum < 0 || definition.maximum > static_cast<double>(MaxTextBytes)))
        cursor.Member("maximum").Fail("texts have from 0 to " + std::to_string(MaxTextBytes) + " bytes");
}

void ReadChoices(const JsonCursor& cursor, ParameterDefinition& definition)
{
    const auto choices = cursor.OptionalMember("choices");
    if (definition.kind != ParameterKind::Choice) {
        if (choices) choices->Fail("parameters of this kind have no choices");
        return;
    }
    std::set<std::string> keys;
    for (const JsonCursor& choice : cursor.Member("choices").Elements(MostChoices)) {
        choice.AllowMembers({"key", "label"});
        const JsonCursor key = choice.Member("key");
        definition.choices.push_back({key.Text(1, MaxTextBytes), ReadLocalizedText(choice.Member("label"))});
        if (!keys.insert(definition.choices.back().key).second) key.Fail("stands twice among the choices");
    }
    if (definition.choices.empty()) cursor.Member("choices").Fail("must not be empty");
}

ParameterValue ReadNumber(const JsonCursor& cursor, const ParameterDefinition& definition)
{
    const double number = cursor.Real();
    if (number < definition.minimum || number > definition.maximum) cursor.Fail("is outside the parameter's own range");
    if (definition.kind == ParameterKind::Real) return number;
    return cursor.Integer(std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max());
}

ParameterValue ReadDefault(const JsonCursor& cursor, const ParameterDefinition& definition)
{
    switch (definition.kind) {
    case ParameterKind::Boolean:
        return cursor.Boolean();
    case ParameterKind::Integer:
    case ParameterKind::Real:
        return ReadNumber(cursor, definition);
    case ParameterKind::Text:
        return cursor.Text(static_cast<std::size_t>(definition.minimum), static_cast<std::size_t>(definition.maximum));
    case ParameterKind::Choice:
        break;
    }
    const std::string key = cursor.Text(1, MaxTextBytes);
    if (std::none_of(definition.choices.begin(), definition.choices.end(),
                     [&](const ParameterChoice& choice) { return choice.key == key; }))
        cursor.Fail("is none of the choices");
    return key;
}

} // namespace

LocalizedText ReadLocalizedText(const JsonCursor& text)
{
    if (text.IsText()) {
        const std::string everywhere = text.Text(1, MaxTextBytes);
        return {everywhere, everywhere};
    }
    text.AllowMembers({"en", "de"});
    return {text.Member("en").Text(1, MaxTextBytes), text.Member("de").Text(1, MaxTextBytes)};
}

ParameterDefinition ReadParameterDefinition(const JsonCursor& cursor)
{
    cursor.AllowMembers(
        {"key", "label", "help", "kind", "unit", "minimum", "maximum", "default", "choices", "notAbove"});
    ParameterDefinition definition;
    definition.key = cursor.Member("key").Text(1, MaxTextBytes);
    definition.label = ReadLocalizedText(cursor.Member("label"));
    if (const auto help = cursor.OptionalMember("help")) definition.help = ReadLocalizedText(*help);
    definition.kind = cursor.Member("kind").Named(KindNames);
    if (const auto unit = cursor.OptionalMember("unit")) definition.unit = unit->Text(1, MaxTextBytes);
    ReadRange(cursor, definition);
    ReadChoices(cursor, definition);
    if (const auto notAbove = cursor.OptionalMember("notAbove")) {
        if (!IsNumber(definition.kind)) notAbove->Fail("only numbers can be compared");
        definition.notAbove = notAbove->Text(1, MaxTextBytes);
    }
    definition.defaultValue = ReadDefault(cursor.Member("default"), definition);
    return definition;
}

} // namespace zqbchwcx::reference
