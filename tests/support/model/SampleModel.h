#pragma once

#include "zqbchwcx/foundation/PlacePosition.h"
#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/StationData.h"
#include "zqbchwcx/reference/model/contract/Modules.h"
#include "zqbchwcx/reference/model/contract/Station.h"
#include "zqbchwcx/reference/model/editing/EditModule.h"
#include "zqbchwcx/reference/model/editing/PlaceModules.h"
#include "zqbchwcx/reference/model/editing/StationDraft.h"
#include "zqbchwcx/reference/model/rules/PlacingRules.h"

#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace zqbchwcx::reference {

// For readable messages of failed tests.
inline void PrintTo(Rule rule, std::ostream* os)
{
    *os << RuleId(rule);
}
inline void PrintTo(const PlaceRef& place, std::ostream* os)
{
    *os << place.rack << "/" << place.place;
}

} // namespace zqbchwcx::reference

namespace zqbchwcx::testing {

/// A small catalogue with one type of every sort that the rules know. Order numbers are short: "PS", "CPU", "IM",
/// "DI" (2 bytes in), "DO" (2 bytes out), "AI2" (2 places, 8 bytes in), "CNT3" (3 places, two sub-modules "SUB" of
/// 4 bytes in and out), "CP", "DM" (dummy), "HEAD2" (head, 2 places), "CENTRAL" (central stations only). Others stand
/// for a picture of the overview: "IO_DIGITAL", "IO_DIGITAL2" and "IO_DIGITAL3" (places), "Pump" (a file). Only "DI"
/// has parameters.
std::shared_ptr<const reference::Catalogue> SampleCatalogue();

/// A station with all places active and empty; without their number, kind 0 has 11 per rack, the others 24.
reference::StationData EmptyStation(std::int32_t kind, std::size_t racks, std::size_t places = 0);

reference::ModuleDataPtr NewModuleData(const std::string& orderNumber);
/// A block of order numbers, "-" for an empty place, "+" where a module goes on: "DI - AI2 + DO".
reference::ModuleBlock Block(const std::string& orderNumbers);

/// A station's rules and edits over plain data, and what stands where as text.
class PlainStation {
public:
    explicit PlainStation(reference::StationData data) : moData(std::move(data)) {}

    const reference::StationData& Data() const { return moData; }

    /// Places the block and keeps the result; the rule that stands against it otherwise.
    std::optional<reference::Rule> Place(std::int32_t lPosition, const reference::ModuleBlock& block)
    {
        return Keep(PlaceBlock(Context(), lPosition, block));
    }
    std::optional<reference::Rule> Move(std::int32_t lPosition, const reference::ModuleBlock& block,
                                        const std::vector<reference::PlaceRef>& sources)
    {
        return Keep(MoveBlock(Context(), lPosition, block, sources));
    }
    std::optional<reference::Rule> Delete(const std::vector<reference::PlaceRef>& places)
    {
        return Keep(DeleteAt(Context(), places));
    }
    std::optional<reference::Rule> Set(reference::PlaceRef place, const std::string& name, const std::string& value)
    {
        return Keep(SetAttribute(Context(), place, name, value));
    }
    void Usability(reference::PlaceRef place, std::int32_t usability);
    void PutUnchecked(reference::PlaceRef place, reference::ModuleData module);

    /// What stands in the rack, as a block is written: "PS CPU - AI2 +".
    std::string Row(std::int32_t rack) const;
    const reference::ModuleData& At(reference::PlaceRef place) const { return *FindPlace(moData, place)->module; }

private:
    /// Only for the statement that it is called in.
    reference::EditContext Context();
    std::optional<reference::Rule> Keep(const reference::Outcome<reference::Edit>& edit);

    reference::StationData moData;
    std::optional<reference::StationAddresses> moAddresses;
};

reference::ModelContextPtr SampleContext();

} // namespace zqbchwcx::testing
