#include "zqbchwcx/reference/model/editing/EditModule.h"

#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"
#include "zqbchwcx/reference/model/rules/ModuleRules.h"
#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include <algorithm>
#include <charconv>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace zqbchwcx::reference {
namespace {

Refusal NoModule(PlaceRef place)
{
    const LocalizedText where = PlaceText(place);
    return {Rule::NothingToPlace, place, {"There is no module in " + where.en, "Auf " + where.de + " steckt nichts"}};
}

struct Range {
    AddressArea area;
    std::int32_t address;
    std::int32_t bytes;
};

/// The ranges of the module and its sub-modules: those that it had before, and those that it gets.
struct Ranges {
    std::vector<Range> kept;
    std::vector<Range> changed;
};

void CollectRanges(const ModuleData* before, const ModuleData& after, const Catalogue& catalogue, Ranges& ranges)
{
    if (const ModuleType* type = catalogue.Find(after.orderNumber)) {
        for (const AddressArea area : {AddressArea::Input, AddressArea::Output}) {
            const auto& address = AddressIn(area, after);
            const std::int32_t bytes = BytesIn(area, *type);
            if (!address || bytes <= 0) continue;
            const bool isKept = before && AddressIn(area, *before) == address;
            (isKept ? ranges.kept : ranges.changed).push_back({area, *address, bytes});
        }
    }
    for (std::size_t i = 0; i < after.subModules.size(); ++i) {
        const bool hadIt = before && i < before->subModules.size();
        CollectRanges(hadIt ? &before->subModules[i] : nullptr, after.subModules[i], catalogue, ranges);
    }
}

Refusal AddressInUse(const Range& range, const StationDraft& draft, PlaceRef place)
{
    const auto user = UserOf(range.area, range.address, range.bytes, draft.Data(), draft.ModuleTypes());
    const LocalizedText what = AreaText(range.area);
    const LocalizedText who =
        user ? PlaceText(*user) : LocalizedText{"another part of the module", "einen anderen Teil der Baugruppe"};
    const std::string bytes = std::to_string(range.address) + ".." + std::to_string(range.address + range.bytes - 1);
    return {Rule::AddressOverlap,
            place,
            {"The " + what.en + " " + bytes + " are in use by " + who.en,
             "Die " + what.de + " " + bytes + " sind durch " + who.de + " belegt"}};
}

/// Against new addresses that are in use, be it by the module's own other parts. The module is not in the draft.
Objection AgainstUsed(StationDraft& draft, const Ranges& ranges, PlaceRef place)
{
    StationAddresses& addresses = draft.Addresses();
    for (const Range& range : ranges.kept) addresses.Of(range.area).Claim(range.address, range.bytes);
    for (const Range& range : ranges.changed) {
        if (!addresses.Of(range.area).IsFree(range.address, range.bytes)) return AddressInUse(range, draft, place);
        addresses.Of(range.area).Claim(range.address, range.bytes);
    }
    return {};
}

std::vector<Refusal> Against(const ModuleData& module, const EditContext& context, PlaceRef place)
{
    std::vector<Refusal> found = AgainstModule(module, context.catalogue, place);
    for (Refusal& refusal : AgainstAddresses(module, context.catalogue, AddressAreaSize(context.data), place))
        found.push_back(std::move(refusal));
    return found;
}

/// What stands against the new configuration and did not stand against the old one: whoever mends a broken module
/// one attribute at a time is not held up by the others.
Objection AgainstChange(const ModuleData& before, const ModuleData& after, const EditContext& context, PlaceRef place)
{
    const std::vector<Refusal> old = Against(before, context, place);
    for (Refusal& refusal : Against(after, context, place)) {
        const bool isOld = std::any_of(old.begin(), old.end(), [&](const Refusal& other) {
            return other.rule == refusal.rule && other.text.en == refusal.text.en;
        });
        if (!isOld) return std::move(refusal);
    }
    return {};
}

void DropDefaults(ModuleData& module, const Catalogue& catalogue)
{
    if (const ModuleType* type = catalogue.Find(module.orderNumber)) {
        std::erase_if(module.parameters, [&](const auto& parameter) {
            const ParameterDefinition* definition = FindParameter(*type, parameter.first);
            return definition && definition->defaultValue == parameter.second;
        });
    }
    for (ModuleData& subModule : module.subModules) DropDefaults(subModule, catalogue);
}

Objection AgainstOtherType(const ModuleData& before, const ModuleData& after, PlaceRef place)
{
    if (before.orderNumber == after.orderNumber) return {};
    return Refusal{Rule::UnknownType,
                   place,
                   {"The module in " + PlaceText(place).en + " stays a " + before.orderNumber,
                    "Die Baugruppe auf " + PlaceText(place).de + " bleibt " + before.orderNumber}};
}

std::optional<std::int32_t> AddressFrom(std::string_view text)
{
    std::int32_t address = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), address);
    if (error != std::errc() || end != text.data() + text.size()) return {};
    return address;
}

std::string_view Trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

Objection WriteAddress(ModuleData& module, const ModuleType& type, AddressArea area, std::string_view text,
                       PlaceRef place)
{
    const std::int32_t bytes = BytesIn(area, type);
    const auto dots = text.find("..");
    const auto address = AddressFrom(Trimmed(text.substr(0, dots)));
    const auto last = dots == std::string_view::npos ? address : AddressFrom(Trimmed(text.substr(dots + 2)));
    if (!address || !last) {
        return Refusal{Rule::AddressSyntax,
                       place,
                       {"\"" + std::string(text) + "\" is not an address: a number of bytes such as 4 or 4..7",
                        "\"" + std::string(text) + "\" ist keine Adresse: eine Bytenummer wie 4 oder 4..7"}};
    }
    if (dots != std::string_view::npos && std::int64_t{*last} - *address + 1 != bytes) {
        const std::string count = std::to_string(bytes);
        return Refusal{Rule::AddressRange,
                       place,
                       {type.orderNumber + " has " + count + " bytes of " + AreaText(area).en,
                        type.orderNumber + " hat " + count + " Bytes " + AreaText(area).de}};
    }
    AddressIn(area, module) = *address;
    return {};
}

/// A value that no parameter of that kind takes, for the reason of its refusal.
ParameterValue WrongKind(const ParameterDefinition& definition)
{
    if (definition.kind == ParameterKind::Boolean) return std::string();
    return false;
}

Objection WriteParameter(ModuleData& module, const ParameterDefinition& definition, std::string_view text,
                         PlaceRef place)
{
    std::optional<ParameterValue> value = ValueFromText(definition, text);
    if (!value) return AgainstValue(definition, WrongKind(definition), place);
    if (Objection objection = AgainstValue(definition, *value, place)) return objection;
    module.parameters[definition.key] = *std::move(value);
    return {};
}

Refusal NoAttribute(std::string_view name, PlaceRef place)
{
    const std::string attribute(name);
    return {Rule::NoSuchAttribute,
            place,
            {"The module in " + PlaceText(place).en + " has no attribute \"" + attribute + "\" that can be written",
             "Die Baugruppe auf " + PlaceText(place).de + " hat kein schreibbares Attribut \"" + attribute + "\""}};
}

Objection Write(ModuleData& module, const ModuleType* type, std::string_view name, std::string_view value,
                PlaceRef place)
{
    const std::optional<Attribute> attribute = FindAttribute(module, type, name);
    if (!attribute) return NoAttribute(name, place);
    switch (attribute->kind) {
    case AttributeKind::Name:
        module.name = value;
        return {};
    case AttributeKind::Comment:
        module.comment = value;
        return {};
    case AttributeKind::InputAddress:
    case AttributeKind::OutputAddress: {
        const bool input = attribute->kind == AttributeKind::InputAddress;
        if (!type) return NoAttribute(name, place);
        return WriteAddress(module, *type, input ? AddressArea::Input : AddressArea::Output, value, place);
    }
    case AttributeKind::Parameter:
        return WriteParameter(module, *attribute->parameter, value, place);
    case AttributeKind::BasicAddress:
        break;
    }
    return NoAttribute(name, place);
}

} // namespace

Outcome<Edit> ReplaceModule(const EditContext& context, PlaceRef place, const ModuleData& module)
{
    if (Objection objection = AgainstEditing(context.data)) return *std::move(objection);
    StationDraft draft(context);
    const PlaceRef firstPlace = draft.FirstPlaceOf(place);
    if (firstPlace.place == 0) return NoModule(place);
    const ModuleDataPtr before = draft.Take(firstPlace);
    if (Objection objection = AgainstOtherType(*before, module, firstPlace)) return *std::move(objection);
    auto after = std::make_shared<ModuleData>(module);
    DropDefaults(*after, context.catalogue);
    if (Objection objection = AgainstChange(*before, *after, context, firstPlace)) return *std::move(objection);
    Ranges ranges;
    CollectRanges(before.get(), *after, context.catalogue, ranges);
    if (Objection objection = AgainstUsed(draft, ranges, firstPlace)) return *std::move(objection);
    draft.Put(firstPlace, std::move(after));
    return Edit{draft.Data(), {firstPlace}};
}

Outcome<Edit> SetAttribute(const EditContext& context, PlaceRef place, std::string_view name, std::string_view value)
{
    if (Objection objection = AgainstEditing(context.data)) return *std::move(objection);
    StationDraft draft(context);
    const PlaceRef firstPlace = draft.FirstPlaceOf(place);
    if (firstPlace.place == 0) return NoModule(place);
    ModuleData module = *draft.ModuleAt(firstPlace);
    const ModuleType* type = context.catalogue.Find(module.orderNumber);
    if (Objection objection = Write(module, type, name, value, firstPlace)) return *std::move(objection);
    return ReplaceModule(context, firstPlace, module);
}

} // namespace zqbchwcx::reference
