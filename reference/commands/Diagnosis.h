#pragma once

#include "zqbchwcx/reference/commands/ModuleListText.h"
#include "zqbchwcx/reference/diag/PlantFinding.h"
#include "zqbchwcx/reference/diag/PlantLog.h"

#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// What a plant tells at one moment.
struct Diagnosis {
    std::string station;
    Connection connection;
    OperatingState controller = OperatingState::None;
    std::vector<ComponentVersion> versions;
    std::vector<ModuleFindings> modules; ///< sound ones, too

    bool HasFailure() const;
};

Diagnosis Diagnose(const Plant& plant, const StationData& station, const Catalogue& catalogue, Language language);

/// As lines for reading (what is not sound, below a head), as CSV (a line for each module that is not sound) or as JSON
/// (all modules; the names of members are the same in every language).
std::string WriteDiagnosis(const Diagnosis& diagnosis, ListFormat format, Language language);

/// One line for a terminal: time, place, module, came or went, what.
std::string WriteLogLine(const PlantLogEntry& entry, ListFormat format, Language language);

/// The table of a register map, with the layout of a state word below it, for those who program the controller.
std::string WriteRegisterMap(const StationData& station, const Catalogue& catalogue, ListFormat format,
                             Language language);

} // namespace zqbchwcx::reference
