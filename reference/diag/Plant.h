#pragma once

#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/reference/diag/PlantState.h"
#include "zqbchwcx/reference/diag/RegisterMap.h"
#include "zqbchwcx/reference/diag/StateWord.h"

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace zqbchwcx::reference {

/// What has changed at one moment. Whoever is told can find the rest in the plant.
struct PlantChange {
    Time at;
    bool connection = false;              ///< its kind or reason
    std::vector<RegisterValue> registers; ///< in the order of their numbers
    std::vector<PlantItem> items; ///< whose state is another one: all of them when it begins or ceases to be known
};

/// What a source has told about the modules of a station so far, and whether it still holds. Sources tell it; services,
/// lists and recorders listen.
class Plant {
public:
    Plant(RegisterMap map, Clock clock);

    const RegisterMap& Map() const { return moMap; }
    const PlantState& State() const { return moState; }
    bool IsKnown() const { return moState.connection.kind == ConnectionKind::Connected; }

    /// Nothing while the state is not known, and for what the station does not have.
    std::optional<StateWord> At(const PlantItem& item) const;
    /// Since when it is as it is; while it is not known, since when that is so.
    Time Since(const PlantItem& item) const;
    /// Of the station's controller; nothing while it is not known.
    OperatingState ControllerState() const;
    /// Of the station's controller; none while they are not known.
    std::vector<ComponentVersion> ComponentVersions() const;

    /// A source has read registers, from that number on; what lies beyond the map is passed over. The first ones after
    /// the state was unknown must be all of them.
    void Take(std::size_t first, std::span<const std::uint16_t> values);
    /// A source cannot tell the state any more. One that goes on being out of reach has been so since it began.
    void Lose(ConnectionKind kind, LocalizedText reason = {});

    Event<const PlantChange&> Changed;

private:
    void TellUnlessNothing(const PlantChange& change);

    RegisterMap moMap;
    Clock moClock;
    PlantState moState;
};
using PlantPtr = std::shared_ptr<Plant>;

} // namespace zqbchwcx::reference
