#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/diag/Plant.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// What there is to tell about a module or sub-module that is not sound, or of which that is not known.
struct PlantFinding {
    PlantItem item;
    LocalizedText what;
    LocalizedText remedy;       ///< what to do about it; may be empty
    std::int32_t channel = 0;   ///< from 1; 0 for the module as a whole
    std::int32_t faultCode = 0; ///< 0 for none
    Time since;
};

/// Nothing for a sound module. The module's type, which may be null, gives the texts.
std::optional<PlantFinding> FindingAt(const Plant& plant, const PlantItem& item, const ModuleType* type,
                                      const Catalogue& catalogue);

/// A module of a station with what there is to tell about it.
struct ModuleFindings {
    PlantItem item;
    std::string name; ///< as it is shown
    std::string orderNumber;
    std::optional<PlantFinding> finding; ///< nothing: sound
};

/// All modules and sub-modules of racks that are present, in the order of racks, places and slots.
std::vector<ModuleFindings> ModulesOf(const Plant& plant, const StationData& station, const Catalogue& catalogue,
                                      Language language);

} // namespace zqbchwcx::reference
