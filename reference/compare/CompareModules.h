#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/compare/CompareOptions.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// How a place of two stations compares; the numbers are those of `PlaceResult` of the compare service.
enum class CompareResult : std::int32_t {
    NotCompared = 0, ///< one of the stations has no such place and the other no module in it
    Equal = 1,       ///< no module on either side, too
    /// Modules of one type that the catalogue lacks: what only one of them sets may be the other one's default.
    PotentiallyEqual = 2,
    OnlyFirst = 3,
    OnlySecond = 4,
    OtherModule = 5,     ///< another order number, or another part of a module that spans several places
    OtherSubModules = 6, ///< the same order number, equipped with other sub-modules
    OtherParameters = 7, ///< at least one parameter
    OtherAttributes = 8, ///< only what no parameter dialog shows: names, comments, addresses
};

/// What a finding is about.
enum class Aspect { OrderNumber, SubModule, Parameter, UncertainParameter, Name, Comment, InputAddress, OutputAddress };

/// One thing in which two modules differ.
struct ModuleFinding {
    Aspect aspect = Aspect::Name;
    std::size_t subModule = 0;  ///< the slot from 1 of a sub-module; 0 for the module itself
    std::string parameter = {}; ///< key of a parameter

    bool operator==(const ModuleFinding&) const = default;
};

/// Everything in which the modules differ, the module's own first, then slot by slot. Parameters that a module does not
/// set have their defaults; those of different types are not compared.
std::vector<ModuleFinding> FindDifferences(const ModuleData& first, const ModuleData& second,
                                           const Catalogue& catalogue, const CompareOptions& options);

/// What the findings come to.
CompareResult ResultOf(const std::vector<ModuleFinding>& findings);

} // namespace zqbchwcx::reference
