#pragma once

#include "zqbchwcx/reference/catalogue/LocalizedText.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zqbchwcx::reference {

/// What a module is for; the placing rules go by it.
enum class ModuleFamily {
    PowerSupply,
    Controller,
    Interface, ///< joins racks (central station) or is the head (distributed station)
    Digital,
    Analog,
    Counter,
    Communication,
    Dummy, ///< keeps a place free
};

enum class ParameterKind { Boolean, Integer, Real, Choice, Text };

struct ParameterChoice {
    std::string key; ///< what is stored
    LocalizedText label;
};

struct ParameterDefinition {
    std::string key;
    LocalizedText label;
    LocalizedText help;
    ParameterKind kind = ParameterKind::Boolean;
    std::string unit;   ///< shown behind the value; empty for none
    double minimum = 0; ///< Integer and Real; Text: smallest length
    double maximum = 0; ///< Integer and Real; Text: largest length
    ParameterValue defaultValue;
    std::vector<ParameterChoice> choices;
    std::string notAbove =
        {}; ///< Integer and Real: key of the type's parameter that this one must not exceed; or empty
};

/// Integer and Real.
bool IsNumber(ParameterKind kind);
/// Nothing for a value that is no number.
std::optional<double> NumberIn(const ParameterValue& value);

struct ModuleType {
    std::string orderNumber;
    ModuleFamily family = ModuleFamily::Digital;
    LocalizedText name;
    LocalizedText description;
    std::string picture;         ///< `PictureName` of its modules
    std::int32_t placeCount = 1; ///< places that the module fills
    std::int32_t inputBytes = 0;
    std::int32_t outputBytes = 0;
    bool fitsCentral = true;
    bool fitsDistributed = true;
    std::int32_t distributedKind = 0;    ///< the one distributed `StationKind` that it fits; 0: both of them
    std::vector<std::string> subModules; ///< order numbers of the sub-modules in slot order
    bool isSubModule = false;            ///< exists only inside another module
    std::vector<ParameterDefinition> parameters;
    std::vector<std::pair<LocalizedText, LocalizedText>> facts; ///< "Current draw" → "120 mA"

    /// Whether stations of that `StationKind` take the module.
    bool FitsStation(std::int32_t stationKind) const
    {
        if (stationKind == 0) return fitsCentral;
        return fitsDistributed && (distributedKind == 0 || distributedKind == stationKind);
    }
};

/// Null when the type has no such parameter.
const ParameterDefinition* FindParameter(const ModuleType& type, std::string_view key);

/// What a fault code means that a module reports.
struct FaultText {
    LocalizedText what;
    LocalizedText remedy; ///< what to do about it
};

/// By family and code; without a family for those that have no text of their own.
using FaultTexts = std::map<std::pair<std::optional<ModuleFamily>, std::int32_t>, FaultText>;

/// A folder of the catalogue tree.
struct CatalogueGroup {
    LocalizedText name;
    std::vector<std::string> orderNumbers;
    std::vector<CatalogueGroup> groups;
};

/// All module types that stations may use.
class Catalogue {
public:
    Catalogue() = default;
    Catalogue(std::string maker, std::vector<ModuleType> types, std::vector<CatalogueGroup> groups,
              FaultTexts faults = {});

    /// Null when there is no such type. The pointer is valid as long as the catalogue.
    const ModuleType* Find(std::string_view orderNumber) const;
    /// Null for a code without a text; a module of an unknown type has no family.
    const FaultText* FindFault(std::optional<ModuleFamily> family, std::int32_t code) const;
    const std::string& Maker() const { return msMaker; }
    const std::vector<ModuleType>& Types() const { return mcolTypes; }
    const std::vector<CatalogueGroup>& Groups() const { return mcolGroups; }

private:
    std::string msMaker;
    std::vector<ModuleType> mcolTypes;
    std::vector<CatalogueGroup> mcolGroups;
    FaultTexts mcolFaults;
    std::unordered_map<std::string, std::size_t> mcolIndexByOrderNumber;
};

} // namespace zqbchwcx::reference
