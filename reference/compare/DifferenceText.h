#pragma once

#include "zqbchwcx/reference/compare/CompareStations.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// The numbers are those of `Kind` of a parameter difference.
enum class DifferenceKind : std::int32_t { Other = 0, Parameter = 1, Address = 2 };

/// A difference as people read it.
struct DifferenceText {
    DifferenceKind kind = DifferenceKind::Other;
    std::string group;   ///< type of a sub-module; else empty
    std::string channel; ///< slot of a sub-module; else empty
    std::string name;    ///< of a parameter, "Comment", "Inputs"
    std::string value1;  ///< of the first station, with its unit; empty for none
    std::string value2;

    bool operator==(const DifferenceText&) const = default;
};

/// A parameter's value with its unit, or the name of a choice. Without a definition (null) or with a value of another
/// kind than it defines, the value as it is.
std::string ReadableValue(const ParameterDefinition* definition, const ParameterValue& value, Language language);

/// What `FindDifferences` has found in these two modules.
std::vector<DifferenceText> DescribeDifferences(const ModuleData& first, const ModuleData& second,
                                                const std::vector<ModuleFinding>& findings, const Catalogue& catalogue,
                                                Language language);

/// "central", or the variant of a distributed station.
LocalizedText StationKindText(std::int32_t kind);

/// A difference of these two stations beside their modules.
DifferenceText DescribeDifference(const StationData& first, const StationData& second,
                                  const StationDifference& difference, Language language);

/// "Rack 0: 8 modules from place 1 to 8 stand 1 place further on (+1)".
std::string DescribeMoved(const MovedModules& moved, Language language);

} // namespace zqbchwcx::reference
