#pragma once

#include "zqbchwcx/reference/compare/DifferenceText.h"

#include <array>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// A place, or a run of places, in which two stations differ, in words.
struct ReportedPlace {
    PlaceRef place;
    std::int32_t lastPlace = 0;
    CompareResult result = CompareResult::NotCompared;
    std::string first; ///< "DI 16 fast (Q3-DI16-F)"; empty without a module
    std::string second;
    std::vector<DifferenceText> details;
};

/// What is told of two stations, whatever it is written as.
struct CompareReport {
    std::array<std::string, 2> files; ///< what the user calls the stations
    std::array<std::string, 2> names; ///< what the stations call themselves
    bool same = true;
    bool placesCompared = true;          ///< False for stations of different kinds
    std::vector<DifferenceText> station; ///< beside the modules
    std::vector<ReportedPlace> places;
    std::vector<std::string> moved; ///< hints, a sentence each without a full stop
};

/// Compares the stations and puts the result into words of the language.
CompareReport ReportOf(const StationData& first, const StationData& second, const std::array<std::string, 2>& files,
                       const Catalogue& catalogue, const CompareOptions& options, Language language);

/// "Rack 0, place 4" or "Rack 0, places 4 to 6".
std::string PlacesText(const ReportedPlace& place, Language language);
/// What the result says: "parameters differ".
LocalizedText ResultText(CompareResult result);
/// A name for programs: "other-parameters".
std::string_view ResultId(CompareResult result);
/// "Axis 2: Feed constant", with the type and slot of a sub-module before the name.
std::string FullName(const DifferenceText& text);
/// What the report comes to, in a sentence or two: "The stations differ in 3 places."
std::string Summary(const CompareReport& report, Language language);

} // namespace zqbchwcx::reference
