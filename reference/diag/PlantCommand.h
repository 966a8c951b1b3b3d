#pragma once

#include "zqbchwcx/reference/diag/PlantState.h"
#include "zqbchwcx/reference/diag/RegisterMap.h"
#include "zqbchwcx/reference/diag/StateWord.h"

#include <chrono>
#include <string_view>
#include <variant>
#include <vector>

namespace zqbchwcx::reference {

/// What is done to a simulated plant: registers get values.
using PlantCommand = std::vector<RegisterValue>;

/// Reads what is typed or stands in a script:
///
///     place R/P ok                              a place, or with R/P.S a sub-module of its module
///     place R/P fail [channel N] [code N]       the module is faulty
///     place R/P report [channel N] [code N]     it works and reports a fault
///     place R/P lost                            it cannot be reached
///     place R/P missing                         it is not plugged in
///     cpu run | stop | hold
///     all ok
///
/// Answers why not when it is none of these or the station does not have the place.
std::variant<PlantCommand, LocalizedText> ParsePlantCommand(std::string_view text, const RegisterMap& map);

struct ScriptStep {
    std::chrono::milliseconds at{0}; ///< since the script began
    PlantCommand command;
};

struct Script {
    std::vector<ScriptStep> steps; ///< in the order of their times
    std::chrono::milliseconds length{0};
    bool repeats = false; ///< begins anew when its length is over
};

/// Reads a script: a command a line, in front of it "+2.5s", the time since the line before (without it: at the same
/// time). "repeat" as the last line, with or without a time, lets it begin anew. Empty lines, and what follows a "#",
/// count for nothing. Throws FileError (file with line number, reason).
Script ParseScript(std::string_view text, std::string_view fileName, const RegisterMap& map);

} // namespace zqbchwcx::reference
