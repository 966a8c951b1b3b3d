#pragma once

#include "zqbchwcx/reference/diag/PlantFinding.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

enum class LogEvent { Came, Went, Note };

/// "came", "went"; empty for a note.
LocalizedText LogEventText(LogEvent event);

struct PlantLogEntry {
    Time at;
    std::optional<PlantItem> item; ///< none: the plant as a whole
    LocalizedText module;          ///< its name; empty without an item
    LogEvent event = LogEvent::Note;
    LocalizedText what;
};

/// Tells what came and what went. A connection that is lost is one entry, not one for each module; when it is back,
/// what differs from before is told.
class PlantLog {
public:
    /// The catalogue outlives the log.
    PlantLog(const StationData& station, const Catalogue& catalogue);

    /// The entries of a change, in the order of racks, places and slots.
    std::vector<PlantLogEntry> Read(const Plant& plant, const PlantChange& change);
    /// The modules of the rack that are not sound, each counted once with its sub-modules, as they were known last.
    std::int32_t FaultyModules(std::int32_t lRack) const;

private:
    struct Module {
        LocalizedText name;
        std::string orderNumber;
        std::optional<PlantFinding> finding; ///< as it was told last
    };

    void ReadModule(const Plant& plant, const PlantItem& item, Time at, std::vector<PlantLogEntry>& entries);

    const Catalogue& moCatalogue;
    std::map<PlantItem, Module> mcolModules;
    std::optional<OperatingState> meController;
};

} // namespace zqbchwcx::reference
