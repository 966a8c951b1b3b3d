#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <type_traits>

namespace zqbchwcx::reference {
namespace {

constexpr std::string_view ParameterPrefix = "PARAMETER ";

struct FixedAttribute {
    std::string_view name;
    AttributeKind kind;
};
constexpr std::array fixedAttributes = {
    FixedAttribute{"NAME", AttributeKind::Name},
    FixedAttribute{"COMMENT", AttributeKind::Comment},
    FixedAttribute{"I-ADDRESS", AttributeKind::InputAddress},
    FixedAttribute{"O-ADDRESS", AttributeKind::OutputAddress},
    FixedAttribute{"BASIC ADDRESS", AttributeKind::BasicAddress},
};

char UpperCase(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

bool SameWithoutCase(std::string_view a, std::string_view b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char left, char right) { return UpperCase(left) == UpperCase(right); });
}

bool HasAddress(AddressArea area, const ModuleData& module, const ModuleType* type)
{
    return AddressIn(area, module).has_value() || (type && BytesIn(area, *type) > 0);
}

bool Has(AttributeKind kind, const ModuleData& module, const ModuleType* type)
{
    const bool inputs = HasAddress(AddressArea::Input, module, type);
    const bool outputs = HasAddress(AddressArea::Output, module, type);
    switch (kind) {
    case AttributeKind::InputAddress:
        return inputs;
    case AttributeKind::OutputAddress:
        return outputs;
    case AttributeKind::BasicAddress:
        return inputs || outputs;
    case AttributeKind::Name:
    case AttributeKind::Comment:
    case AttributeKind::Parameter:
        return true;
    }
    return false;
}

template <class Number>
std::optional<Number> NumberFrom(std::string_view text)
{
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return {};
    return number;
}

std::string NumberText(double number)
{
    std::array<char, 32> digits{};
    const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
    return {digits.data(), end};
}

std::optional<bool> BooleanFrom(std::string_view text)
{
    if (text == "1" || SameWithoutCase(text, "true")) return true;
    if (text == "0" || SameWithoutCase(text, "false")) return false;
    return {};
}

template <class Value>
std::optional<ParameterValue> AsParameter(const std::optional<Value>& value)
{
    if (!value) return {};
    return ParameterValue(*value);
}

} // namespace

std::optional<Attribute> FindAttribute(const ModuleData& module, const ModuleType* type, std::string_view name)
{
    for (const FixedAttribute& attribute : fixedAttributes) {
        if (!SameWithoutCase(attribute.name, name)) continue;
        if (!Has(attribute.kind, module, type)) return {};
        return Attribute{attribute.kind, nullptr};
    }
    if (!type || !SameWithoutCase(name.substr(0, ParameterPrefix.size()), ParameterPrefix)) return {};
    const std::string_view key = name.substr(ParameterPrefix.size());
    for (const ParameterDefinition& definition : type->parameters)
        if (SameWithoutCase(definition.key, key)) return Attribute{AttributeKind::Parameter, &definition};
    return {};
}

std::string AttributeText(const ModuleData& module, const ModuleType* type, const Attribute& attribute)
{
    switch (attribute.kind) {
    case AttributeKind::Name:
        return module.name;
    case AttributeKind::Comment:
        return module.comment;
    case AttributeKind::InputAddress:
        return AddressText(AddressArea::Input, module, type);
    case AttributeKind::OutputAddress:
        return AddressText(AddressArea::Output, module, type);
    case AttributeKind::BasicAddress:
        return BasicAddressText(module);
    case AttributeKind::Parameter:
        return ValueText(ValueOf(module, *attribute.parameter));
    }
    return {};
}

std::string ReadableName(const ModuleData& module, const Catalogue& catalogue, Language language)
{
    if (!module.name.empty()) return module.name;
    const ModuleType* type = catalogue.Find(module.orderNumber);
    return type ? type->name.In(language) : module.orderNumber;
}

std::string AddressText(AddressArea area, const ModuleData& module, const ModuleType* type)
{
    const auto& address = AddressIn(area, module);
    if (!address) return {};
    const std::int32_t bytes = type ? BytesIn(area, *type) : 0;
    const std::string first = std::to_string(*address);
    return bytes > 1 ? first + ".." + std::to_string(std::int64_t{*address} + bytes - 1) : first;
}

std::string BasicAddressText(const ModuleData& module)
{
    if (module.inputAddress) return std::to_string(*module.inputAddress);
    return module.outputAddress ? std::to_string(*module.outputAddress) : std::string();
}

const ParameterValue& ValueOf(const ModuleData& module, const ParameterDefinition& definition)
{
    const auto found = module.parameters.find(definition.key);
    return found == module.parameters.end() ? definition.defaultValue : found->second;
}

std::string ValueText(const ParameterValue& value)
{
    return std::visit(
        [](const auto& content) -> std::string {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, bool>) return content ? "1" : "0";
            else if constexpr (std::is_same_v<Content, std::int64_t>) return std::to_string(content);
            else if constexpr (std::is_same_v<Content, double>) return NumberText(content);
            else return content;
        },
        value);
}

std::optional<ParameterValue> ValueFromText(const ParameterDefinition& definition, std::string_view text)
{
    switch (definition.kind) {
    case ParameterKind::Boolean:
        return AsParameter(BooleanFrom(text));
    case ParameterKind::Integer:
        return AsParameter(NumberFrom<std::int64_t>(text));
    case ParameterKind::Real:
        return AsParameter(NumberFrom<double>(text));
    case ParameterKind::Choice:
    case ParameterKind::Text:
        return ParameterValue(std::string(text));
    }
    return {};
}

} // namespace zqbchwcx::reference
