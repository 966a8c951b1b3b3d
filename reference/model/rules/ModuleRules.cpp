#include "zqbchwcx/reference/model/rules/ModuleRules.h"

#include "zqbchwcx/foundation/ConfigTextCodec.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>

namespace zqbchwcx::reference {
namespace {

/// As it is written in the language, without separators of thousands.
LocalizedText NumberText(double value)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(12);
    text << value;
    LocalizedText number{text.str(), text.str()};
    std::replace(number.de.begin(), number.de.end(), '.', ',');
    return number;
}

LocalizedText LabelOf(const ParameterDefinition& definition)
{
    const std::string& en = definition.label.en.empty() ? definition.key : definition.label.en;
    const std::string& de = definition.label.de.empty() ? en : definition.label.de;
    return {"\"" + en + "\"", "\"" + de + "\""};
}

Refusal BadValue(const ParameterDefinition& definition, const LocalizedText& wanted, PlaceRef place)
{
    const LocalizedText label = LabelOf(definition);
    return {
        Rule::ValueNotAllowed, place, {label.en + " must be " + wanted.en, label.de + " muss " + wanted.de + " sein"}};
}

LocalizedText RangeText(const ParameterDefinition& definition)
{
    const LocalizedText low = NumberText(definition.minimum);
    const LocalizedText high = NumberText(definition.maximum);
    return {"a number from " + low.en + " to " + high.en, "eine Zahl von " + low.de + " bis " + high.de};
}

bool InRange(const ParameterDefinition& definition, double value)
{
    return std::isfinite(value) && value >= definition.minimum && value <= definition.maximum;
}

/// The length of a UTF-8 text in characters.
double CharacterCount(std::string_view text)
{
    return static_cast<double>(std::count_if(text.begin(), text.end(),
                                             [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

Objection AgainstTextValue(const ParameterDefinition& definition, const std::string& value, PlaceRef place)
{
    if (Objection tooLong = AgainstText(value, place)) return tooLong;
    const double length = CharacterCount(value);
    if (length >= definition.minimum && length <= definition.maximum) return {};
    const std::string low = NumberText(definition.minimum).en;
    const std::string high = NumberText(definition.maximum).en;
    return BadValue(
        definition,
        {"a text of " + low + " to " + high + " characters", "ein Text mit " + low + " bis " + high + " Zeichen"},
        place);
}

void AgainstParameters(const ModuleData& module, const ModuleType& type, PlaceRef place, std::vector<Refusal>& found)
{
    for (const auto& [key, value] : module.parameters) {
        const ParameterDefinition* definition = FindParameter(type, key);
        if (!definition) {
            found.push_back({Rule::UnknownParameter,
                             place,
                             {type.orderNumber + " has no parameter \"" + key + "\"",
                              type.orderNumber + " hat keinen Parameter \"" + key + "\""}});
        } else if (Objection objection = AgainstValue(*definition, value, place)) {
            found.push_back(*std::move(objection));
        }
    }
}

/// The number that the module has for the parameter; nothing when its value is none.
std::optional<double> NumberOf(const ModuleData& module, const ParameterDefinition& definition)
{
    const auto own = module.parameters.find(definition.key);
    return NumberIn(own == module.parameters.end() ? definition.defaultValue : own->second);
}

/// Against a number that is greater than the one of the parameter that it must not exceed.
Objection AgainstGreater(const ModuleData& module, const ParameterDefinition& lower, const ParameterDefinition& upper,
                         PlaceRef place)
{
    const std::optional<double> low = NumberOf(module, lower);
    const std::optional<double> high = NumberOf(module, upper);
    if (!low || !high || *low <= *high) return {};
    const auto named = [](const ParameterDefinition& definition, double value) {
        const std::string unit = definition.unit.empty() ? std::string() : " " + definition.unit;
        const LocalizedText number = NumberText(value);
        const LocalizedText label = LabelOf(definition);
        return LocalizedText{label.en + " (" + number.en + unit + ")", label.de + " (" + number.de + unit + ")"};
    };
    const LocalizedText below = named(lower, *low);
    const LocalizedText above = named(upper, *high);
    return Refusal{
        Rule::ValueNotAllowed,
        place,
        {below.en + " must not be greater than " + above.en, below.de + " darf nicht größer sein als " + above.de}};
}

void AgainstOrder(const ModuleData& module, const ModuleType& type, PlaceRef place, std::vector<Refusal>& found)
{
    for (const ParameterDefinition& lower : type.parameters) {
        if (lower.notAbove.empty()) continue;
        const ParameterDefinition* upper = FindParameter(type, lower.notAbove);
        if (!upper) continue;
        if (Objection objection = AgainstGreater(module, lower, *upper, place)) found.push_back(*std::move(objection));
    }
}

bool HasTypesOf(const std::vector<ModuleData>& subModules, const std::vector<std::string>& orderNumbers)
{
    return std::equal(subModules.begin(), subModules.end(), orderNumbers.begin(), orderNumbers.end(),
                      [](const ModuleData& subModule, const std::string& orderNumber) {
                          return subModule.orderNumber == orderNumber;
                      });
}

void Append(std::vector<Refusal>& all, std::vector<Refusal> more)
{
    all.insert(all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

} // namespace

std::vector<Refusal> AgainstModule(const ModuleData& module, const Catalogue& catalogue, PlaceRef place)
{
    const ModuleType* type = catalogue.Find(module.orderNumber);
    if (!type) {
        return {{Rule::UnknownType,
                 place,
                 {"The catalogue has no module \"" + module.orderNumber + "\"",
                  "Der Katalog enthält keine Baugruppe \"" + module.orderNumber + "\""}}};
    }
    std::vector<Refusal> found;
    for (const std::string& text : {std::cref(module.name), std::cref(module.comment)})
        if (Objection objection = AgainstText(text, place)) found.push_back(*std::move(objection));
    AgainstParameters(module, *type, place, found);
    AgainstOrder(module, *type, place, found);
    if (!HasTypesOf(module.subModules, type->subModules)) {
        found.push_back({Rule::SubModules,
                         place,
                         {"The sub-modules of " + type->orderNumber + " are not those of its type",
                          "Die Submodule von " + type->orderNumber + " sind nicht die ihres Typs"}});
    }
    for (const ModuleData& subModule : module.subModules) Append(found, AgainstModule(subModule, catalogue, place));
    return found;
}

std::vector<Refusal> AgainstAddresses(const ModuleData& module, const Catalogue& catalogue, std::int32_t areaSize,
                                      PlaceRef place)
{
    std::vector<Refusal> found;
    const ModuleType* type = catalogue.Find(module.orderNumber);
    if (!type) return found;
    for (const AddressArea area : {AddressArea::Input, AddressArea::Output}) {
        const auto& address = AddressIn(area, module);
        const std::int32_t bytes = BytesIn(area, *type);
        const LocalizedText what = AreaText(area);
        if (address && bytes == 0) {
            found.push_back({Rule::AddressUnexpected,
                             place,
                             {type->orderNumber + " has no " + what.en + " to be addressed",
                              type->orderNumber + " hat keine " + what.de + " zu adressieren"}});
        } else if (!address && bytes > 0) {
            found.push_back({Rule::AddressMissing,
                             place,
                             {"The " + what.en + " of " + type->orderNumber + " have no address",
                              "Die " + what.de + " von " + type->orderNumber + " haben keine Adresse"}});
        } else if (address) {
            if (Objection objection = AgainstRange(area, *address, bytes, areaSize, place))
                found.push_back(*std::move(objection));
        }
    }
    for (const ModuleData& subModule : module.subModules)
        Append(found, AgainstAddresses(subModule, catalogue, areaSize, place));
    return found;
}

Objection AgainstRange(AddressArea area, std::int32_t address, std::int32_t bytes, std::int32_t areaSize,
                       PlaceRef place)
{
    if (address >= 0 && std::int64_t{address} + bytes <= areaSize) return {};
    const LocalizedText what = AreaText(area);
    const std::string range = std::to_string(address) + ".." + std::to_string(std::int64_t{address} + bytes - 1);
    const std::string last = std::to_string(areaSize - 1);
    return Refusal{Rule::AddressRange,
                   place,
                   {"The " + what.en + " " + range + " do not lie within 0.." + last,
                    "Die " + what.de + " " + range + " liegen nicht innerhalb 0.." + last}};
}

Objection AgainstText(std::string_view text, PlaceRef place)
{
    // What does not survive the way to the clipboard and back is no UTF-8 text.
    if (G_DecodeConfigText(G_EncodeConfigText(text)) != text) {
        return Refusal{Rule::DamagedText,
                       place,
                       {"The text holds characters that cannot be saved",
                        "Der Text enthält Zeichen, die sich nicht speichern lassen"}};
    }
    if (text.size() <= MaxTextBytes) return {};
    const std::string limit = std::to_string(MaxTextBytes);
    return Refusal{
        Rule::TextTooLong,
        place,
        {"A text may have " + limit + " bytes at most", "Ein Text darf höchstens " + limit + " Bytes haben"}};
}

Objection AgainstValue(const ParameterDefinition& definition, const ParameterValue& value, PlaceRef place)
{
    switch (definition.kind) {
    case ParameterKind::Boolean:
        if (std::holds_alternative<bool>(value)) return {};
        return BadValue(definition, {"on or off", "ein oder aus"}, place);
    case ParameterKind::Integer: {
        const auto* number = std::get_if<std::int64_t>(&value);
        if (number && InRange(definition, static_cast<double>(*number))) return {};
        const LocalizedText range = RangeText(definition);
        return BadValue(definition, {"a whole number, " + range.en, "eine ganze Zahl, " + range.de}, place);
    }
    case ParameterKind::Real: {
        const auto* real = std::get_if<double>(&value);
        const auto* whole = std::get_if<std::int64_t>(&value);
        if (real && InRange(definition, *real)) return {};
        if (whole && InRange(definition, static_cast<double>(*whole))) return {};
        return BadValue(definition, RangeText(definition), place);
    }
    case ParameterKind::Choice: {
        const auto* key = std::get_if<std::string>(&value);
        if (key && std::any_of(definition.choices.begin(), definition.choices.end(),
                               [&](const ParameterChoice& choice) { return choice.key == *key; }))
            return {};
        return BadValue(definition, {"one of its choices", "eine der Auswahlen"}, place);
    }
    case ParameterKind::Text: {
        const auto* text = std::get_if<std::string>(&value);
        if (text) return AgainstTextValue(definition, *text, place);
        return BadValue(definition, {"a text", "ein Text"}, place);
    }
    }
    return {};
}

ModuleData NewModule(const ModuleType& type, const Catalogue& catalogue)
{
    ModuleData module;
    module.orderNumber = type.orderNumber;
    for (const std::string& orderNumber : type.subModules)
        if (const ModuleType* subType = catalogue.Find(orderNumber); subType && subType->subModules.empty())
            module.subModules.push_back(NewModule(*subType, catalogue));
    return module;
}

LocalizedText AreaText(AddressArea area)
{
    if (area == AddressArea::Input) return {"inputs", "Eingänge"};
    return {"outputs", "Ausgänge"};
}

} // namespace zqbchwcx::reference
