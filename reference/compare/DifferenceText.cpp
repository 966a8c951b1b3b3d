#include "zqbchwcx/reference/compare/DifferenceText.h"

#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"
#include "zqbchwcx/reference/model/rules/Refusal.h"

#include <algorithm>
#include <cstdlib>

namespace zqbchwcx::reference {
namespace {

const LocalizedText On{"on", "ein"};
const LocalizedText Off{"off", "aus"};
const LocalizedText Yes{"yes", "ja"};
const LocalizedText No{"no", "nein"};
/// What a module of a type that the catalogue lacks does not set.
const LocalizedText NotSet{"(not set)", "(nicht gesetzt)"};

std::string Capitalized(std::string text)
{
    if (!text.empty() && text[0] >= 'a' && text[0] <= 'z') text[0] = static_cast<char>(text[0] - 'a' + 'A');
    return text;
}

/// Null for what the station does not have.
const RackData* RackOf(const StationData& station, std::int32_t rack)
{
    const auto index = static_cast<std::size_t>(rack);
    return index < station.racks.size() ? station.racks[index].get() : nullptr;
}

std::string ValueOfStation(const StationData& station, const StationDifference& difference, Language language)
{
    const RackData* rack = difference.at.rack < 0 ? nullptr : RackOf(station, difference.at.rack);
    switch (difference.aspect) {
    case StationAspect::Kind:
        return StationKindText(station.kind).In(language);
    case StationAspect::Name:
        return station.name;
    case StationAspect::Lock:
        return (station.readOnly ? Yes : No).In(language);
    case StationAspect::RackCount:
        return std::to_string(station.racks.size());
    case StationAspect::RackState:
        return (rack && rack->state != 0 ? Yes : No).In(language);
    case StationAspect::PlaceCount:
        return std::to_string(rack ? rack->places.size() : 0);
    case StationAspect::Usability:
        break;
    }
    const auto index = static_cast<std::size_t>(difference.at.place - 1);
    const std::int32_t usability = rack && index < rack->places.size() ? rack->places[index].usability : -1;
    if (usability > 0) return LocalizedText{"active", "aktiv"}.In(language);
    return (usability == 0 ? LocalizedText{"inactive", "nicht aktiv"} : LocalizedText{"not usable", "nicht nutzbar"})
        .In(language);
}

LocalizedText NameOf(StationAspect aspect)
{
    switch (aspect) {
    case StationAspect::Kind:
        return {"Kind of station", "Art der Station"};
    case StationAspect::Name:
        return {"Name of the station", "Name der Station"};
    case StationAspect::Lock:
        return {"Locked against changes", "Gegen Änderungen gesperrt"};
    case StationAspect::RackCount:
        return {"Number of racks", "Anzahl der Träger"};
    case StationAspect::RackState:
        return {"present", "vorhanden"};
    case StationAspect::PlaceCount:
        return {"number of places", "Anzahl der Plätze"};
    case StationAspect::Usability:
        break;
    }
    return {"usability", "Nutzbarkeit"};
}

/// The texts of one finding of a module or of one of its sub-modules.
class Describer {
public:
    Describer(const Catalogue& catalogue, Language language) : mCatalogue(catalogue), meLanguage(language) {}

    DifferenceText Describe(const ModuleData& first, const ModuleData& second, const ModuleFinding& finding) const
    {
        if (finding.subModule == 0) return Own(first, second, finding);
        if (finding.aspect == Aspect::SubModule) return SubModule(first, second, finding.subModule);
        const std::size_t slot = finding.subModule - 1;
        DifferenceText text = Own(first.subModules[slot], second.subModules[slot], finding);
        const std::string& orderNumber = first.subModules[slot].orderNumber;
        const ModuleType* type = mCatalogue.Find(orderNumber);
        text.group = type ? type->name.In(meLanguage) : orderNumber;
        text.channel = std::to_string(finding.subModule);
        return text;
    }

private:
    DifferenceText Own(const ModuleData& first, const ModuleData& second, const ModuleFinding& finding) const
    {
        const auto text = [this](DifferenceKind kind, const LocalizedText& name, std::string value1,
                                 std::string value2) {
            return DifferenceText{kind, {}, {}, name.In(meLanguage), std::move(value1), std::move(value2)};
        };
        const auto address = [&](AddressArea area, const LocalizedText& name) {
            return text(DifferenceKind::Address, name, AddressText(area, first, mCatalogue.Find(first.orderNumber)),
                        AddressText(area, second, mCatalogue.Find(second.orderNumber)));
        };
        switch (finding.aspect) {
        case Aspect::Name:
            return text(DifferenceKind::Other, {"Name", "Name"}, first.name, second.name);
        case Aspect::Comment:
            return text(DifferenceKind::Other, {"Comment", "Kommentar"}, first.comment, second.comment);
        case Aspect::InputAddress:
            return address(AddressArea::Input, {"Inputs", "Eingänge"});
        case Aspect::OutputAddress:
            return address(AddressArea::Output, {"Outputs", "Ausgänge"});
        case Aspect::Parameter:
        case Aspect::UncertainParameter:
            return Parameter(first, second, finding);
        case Aspect::OrderNumber:
        case Aspect::SubModule:
            break;
        }
        return text(DifferenceKind::Other, {"Order number", "Bestellnummer"}, first.orderNumber, second.orderNumber);
    }

    DifferenceText Parameter(const ModuleData& first, const ModuleData& second, const ModuleFinding& finding) const
    {
        const ModuleType* type = mCatalogue.Find(first.orderNumber);
        const ParameterDefinition* definition = type ? FindParameter(*type, finding.parameter) : nullptr;
        const auto value = [&](const ModuleData& module) {
            if (definition) return ReadableValue(definition, ValueOf(module, *definition), meLanguage);
            const auto own = module.parameters.find(finding.parameter);
            if (own != module.parameters.end()) return ReadableValue(nullptr, own->second, meLanguage);
            return type ? std::string() : NotSet.In(meLanguage);
        };
        return {DifferenceKind::Parameter,
                {},
                {},
                definition ? definition->label.In(meLanguage) : finding.parameter,
                value(first),
                value(second)};
    }

    DifferenceText SubModule(const ModuleData& first, const ModuleData& second, std::size_t slot) const
    {
        const auto value = [&](const ModuleData& module) {
            if (slot > module.subModules.size()) return std::string();
            const ModuleData& subModule = module.subModules[slot - 1];
            return ReadableName(subModule, mCatalogue, meLanguage) + " (" + subModule.orderNumber + ")";
        };
        return {DifferenceKind::Other,
                {},
                {},
                LocalizedText{"Sub-module ", "Submodul "}.In(meLanguage) + std::to_string(slot),
                value(first),
                value(second)};
    }

    const Catalogue& mCatalogue;
    Language meLanguage;
};

} // namespace

std::string ReadableValue(const ParameterDefinition* definition, const ParameterValue& value, Language language)
{
    if (const bool* on = std::get_if<bool>(&value)) return (*on ? On : Off).In(language);
    if (definition && definition->kind == ParameterKind::Choice)
        for (const ParameterChoice& choice : definition->choices)
            if (value == ParameterValue(choice.key)) return choice.label.In(language);
    std::string text = ValueText(value);
    if (!NumberIn(value)) return text;
    if (language == Language::German) std::replace(text.begin(), text.end(), '.', ',');
    return definition && !definition->unit.empty() ? text + " " + definition->unit : text;
}

std::vector<DifferenceText> DescribeDifferences(const ModuleData& first, const ModuleData& second,
                                                const std::vector<ModuleFinding>& findings, const Catalogue& catalogue,
                                                Language language)
{
    const Describer describer(catalogue, language);
    std::vector<DifferenceText> texts;
    texts.reserve(findings.size());
    for (const ModuleFinding& finding : findings) texts.push_back(describer.Describe(first, second, finding));
    return texts;
}

LocalizedText StationKindText(std::int32_t kind)
{
    if (kind == 0) return {"central", "zentral"};
    if (kind == 1) return {"distributed, variant A", "dezentral, Variante A"};
    return {"distributed, variant B", "dezentral, Variante B"};
}

DifferenceText DescribeDifference(const StationData& first, const StationData& second,
                                  const StationDifference& difference, Language language)
{
    std::string name = NameOf(difference.aspect).In(language);
    if (difference.at.rack >= 0) name = Capitalized(PlaceText(difference.at).In(language)) + ": " + name;
    return {DifferenceKind::Other,
            {},
            {},
            std::move(name),
            ValueOfStation(first, difference, language),
            ValueOfStation(second, difference, language)};
}

std::string DescribeMoved(const MovedModules& moved, Language language)
{
    const std::string rack = std::to_string(moved.rack);
    const std::string count = std::to_string(moved.count);
    const std::string places = std::to_string(std::abs(moved.shift));
    const std::string from = std::to_string(moved.firstPlace);
    const std::string to = std::to_string(moved.lastPlace);
    const bool bOne = moved.count == 1;
    const bool bOnePlace = places == "1";
    const bool bOn = moved.shift > 0;
    const std::string sign = (bOn ? "+" : "-") + places;
    if (language == Language::German)
        return "Träger " + rack + ": " + count +
               (bOne ? " Baugruppe von Platz " + from : " Baugruppen von Platz " + from + " bis " + to) +
               (bOne ? " steht " : " stehen ") + places + (bOnePlace ? " Platz" : " Plätze") +
               (bOn ? " weiter hinten" : " weiter vorn") + " (" + sign + ")";
    return "Rack " + rack + ": " + count +
           (bOne ? " module from place " + from + " stands "
                 : " modules from place " + from + " to " + to + " stand ") +
           places + (bOnePlace ? " place" : " places") + (bOn ? " further on" : " further back") + " (" + sign + ")";
}

} // namespace zqbchwcx::reference
