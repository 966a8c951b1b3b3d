#include "zqbchwcx/reference/compare/CompareReport.h"

#include "zqbchwcx/reference/model/editing/ModuleAttributes.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace zqbchwcx::reference {
namespace {

std::string Told(const ModuleDataPtr& module, const Catalogue& catalogue, Language language)
{
    if (!module) return {};
    const std::string name = ReadableName(*module, catalogue, language);
    return name == module->orderNumber ? name : name + " (" + module->orderNumber + ")";
}

} // namespace

CompareReport ReportOf(const StationData& first, const StationData& second, const std::array<std::string, 2>& files,
                       const Catalogue& catalogue, const CompareOptions& options, Language language)
{
    const StationComparison comparison = CompareStations(first, second, catalogue, options);
    CompareReport report{files, {first.name, second.name}, comparison.AreSame(), first.kind == second.kind, {}, {}, {}};
    for (const StationDifference& each : comparison.stationDifferences)
        report.station.push_back(DescribeDifference(first, second, each, language));
    for (const PlaceDifference& each : comparison.placeDifferences) {
        ReportedPlace place{each.place,
                            each.lastPlace,
                            each.result,
                            Told(each.first, catalogue, language),
                            Told(each.second, catalogue, language),
                            {}};
        if (each.first && each.second)
            place.details = DescribeDifferences(*each.first, *each.second,
                                                FindDifferences(*each.first, *each.second, catalogue, options),
                                                catalogue, language);
        report.places.push_back(std::move(place));
    }
    for (const MovedModules& each : comparison.moved) report.moved.push_back(DescribeMoved(each, language));
    return report;
}

std::string PlacesText(const ReportedPlace& place, Language language)
{
    const std::string from = std::to_string(place.place.place);
    const std::string to = std::to_string(place.lastPlace);
    const std::string rack = LocalizedText{"Rack ", "Träger "}.In(language) + std::to_string(place.place.rack);
    if (place.lastPlace == place.place.place) return rack + LocalizedText{", place ", ", Platz "}.In(language) + from;
    return rack + LocalizedText{", places ", ", Plätze "}.In(language) + from +
           LocalizedText{" to ", " bis "}.In(language) + to;
}

LocalizedText ResultText(CompareResult result)
{
    switch (result) {
    case CompareResult::OnlyFirst:
        return {"only in the first station", "nur in der ersten Station"};
    case CompareResult::OnlySecond:
        return {"only in the second station", "nur in der zweiten Station"};
    case CompareResult::OtherModule:
        return {"different modules", "unterschiedliche Baugruppen"};
    case CompareResult::OtherSubModules:
        return {"different sub-modules", "unterschiedliche Submodule"};
    case CompareResult::OtherParameters:
        return {"different parameters", "unterschiedliche Parameter"};
    case CompareResult::OtherAttributes:
        return {"different name, comment or address", "Name, Kommentar oder Adresse unterschiedlich"};
    case CompareResult::PotentiallyEqual:
        return {"perhaps equal: the module type is not known",
                "vielleicht gleich: der Baugruppentyp ist nicht bekannt"};
    case CompareResult::Equal:
        return {"equal", "gleich"};
    case CompareResult::NotCompared:
        break;
    }
    return {"not compared", "nicht verglichen"};
}

std::string_view ResultId(CompareResult result)
{
    switch (result) {
    case CompareResult::OnlyFirst:
        return "only-first";
    case CompareResult::OnlySecond:
        return "only-second";
    case CompareResult::OtherModule:
        return "other-module";
    case CompareResult::OtherSubModules:
        return "other-sub-modules";
    case CompareResult::OtherParameters:
        return "other-parameters";
    case CompareResult::OtherAttributes:
        return "other-attributes";
    case CompareResult::PotentiallyEqual:
        return "perhaps-equal";
    case CompareResult::Equal:
        return "equal";
    case CompareResult::NotCompared:
        break;
    }
    return "not-compared";
}

std::string FullName(const DifferenceText& text)
{
    return text.group.empty() ? text.name : text.group + " " + text.channel + ": " + text.name;
}

std::string Summary(const CompareReport& report, Language language)
{
    if (report.same) return LocalizedText{"The stations are the same.", "Die Stationen sind gleich."}.In(language);
    if (!report.placesCompared)
        return LocalizedText{"The stations are of different kinds; their places were not compared.",
                             "Die Stationen sind von unterschiedlicher Art; ihre Plätze wurden nicht verglichen."}
            .In(language);
    const auto uncertain = static_cast<std::size_t>(
        std::count_if(report.places.begin(), report.places.end(),
                      [](const ReportedPlace& place) { return place.result == CompareResult::PotentiallyEqual; }));
    const std::size_t certain = report.places.size() - uncertain;
    const auto places = [](std::size_t count) {
        const std::string number = std::to_string(count);
        return count == 1 ? LocalizedText{"1 place", "1 Stelle"}
                          : LocalizedText{number + " places", number + " Stellen"};
    };
    std::string text;
    if (certain > 0)
        text = LocalizedText{"The stations differ in " + places(certain).en + ".",
                             "Die Stationen sind an " + places(certain).de + " unterschiedlich."}
                   .In(language);
    else if (!report.station.empty())
        text = LocalizedText{"The stations differ, but not in their modules.",
                             "Die Stationen sind unterschiedlich, aber nicht in ihren Baugruppen."}
                   .In(language);
    if (uncertain == 0) return text;
    if (!text.empty()) text += " ";
    return text +
           LocalizedText{"In " + places(uncertain).en + ", it cannot be told whether the modules are equal.",
                         "An " + places(uncertain).de + " lässt sich nicht sagen, ob die Baugruppen gleich sind."}
               .In(language);
}

} // namespace zqbchwcx::reference
