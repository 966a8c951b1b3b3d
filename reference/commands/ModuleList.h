#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// A module or a sub-module of a station as a line of a list.
struct ModuleRow {
    std::int32_t rack = 0;
    std::int32_t place = 0;
    std::int32_t subModule = 0; ///< from 1 for a sub-module; 0 for a module
    std::string module;         ///< display name
    std::string orderNumber;
    std::string inputs;  ///< "0..3", empty without inputs
    std::string outputs; ///< as the inputs
    std::string comment;

    bool operator==(const ModuleRow&) const = default;
};

/// The modules rack by rack and place by place, each followed by its sub-modules.
std::vector<ModuleRow> ListModules(const StationData& station, const Catalogue& catalogue, Language language);

} // namespace zqbchwcx::reference
