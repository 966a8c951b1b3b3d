#include "zqbchwcx/reference/diag/Plant.h"

#include <algorithm>
#include <utility>

namespace zqbchwcx::reference {

Plant::Plant(RegisterMap map, Clock clock) : moMap(std::move(map)), moClock(std::move(clock))
{
    moState.connection.since = moClock();
    moState.registers.resize(moMap.RegisterCount());
}

std::optional<StateWord> Plant::At(const PlantItem& item) const
{
    const auto address = moMap.RegisterOf(item);
    if (!IsKnown() || !address) return {};
    return DecodeStateWord(moState.registers[*address].value);
}

Time Plant::Since(const PlantItem& item) const
{
    const auto address = moMap.RegisterOf(item);
    return IsKnown() && address ? moState.registers[*address].since : moState.connection.since;
}

OperatingState Plant::ControllerState() const
{
    const std::uint16_t state = moState.registers[MapHead::ControllerState].value;
    const bool hasMeaning = state <= static_cast<std::uint16_t>(OperatingState::Hold);
    return IsKnown() && hasMeaning ? static_cast<OperatingState>(state) : OperatingState::None;
}

std::vector<ComponentVersion> Plant::ComponentVersions() const
{
    std::vector<ComponentVersion> versions;
    if (!IsKnown()) return versions;
    const std::size_t count =
        std::min<std::size_t>(moState.registers[MapHead::ComponentCount].value, MapHead::MostComponents);
    for (std::size_t i = 0; i < count; ++i) {
        const RegisterState* entry = &moState.registers[MapHead::FirstComponent + i * MapHead::ComponentSize];
        versions.push_back({ComponentText(entry[0].value), std::to_string(entry[1].value) + "." +
                                                               std::to_string(entry[2].value) + "." +
                                                               std::to_string(entry[3].value)});
    }
    return versions;
}

void Plant::Take(std::size_t first, std::span<const std::uint16_t> values)
{
    PlantChange change{moClock(), !IsKnown(), {}, {}};
    if (change.connection) {
        moState.connection = {ConnectionKind::Connected, change.at, {}};
        change.items = moMap.Items();
    }
    for (std::size_t i = 0; i < values.size() && first + i < moState.registers.size(); ++i) {
        const std::size_t address = first + i;
        RegisterState& last = moState.registers[address];
        // A value that has never been told before counts as new, also when it is zero.
        if (last.value == values[i] && last.since != Time::min()) continue;
        last = {values[i], change.at};
        change.registers.push_back({address, values[i]});
        if (address >= MapHead::FirstItem && !change.connection)
            change.items.push_back(moMap.Items()[address - MapHead::FirstItem]);
    }
    TellUnlessNothing(change);
}

void Plant::Lose(ConnectionKind kind, LocalizedText reason)
{
    PlantChange change{moClock(), false, {}, {}};
    if (IsKnown()) change.items = moMap.Items();
    Connection& connection = moState.connection;
    if (connection.kind != kind) connection = {kind, change.at, {}};
    else if (connection.reason.en == reason.en) return;
    connection.reason = std::move(reason);
    change.connection = true;
    TellUnlessNothing(change);
}

void Plant::TellUnlessNothing(const PlantChange& change)
{
    if (change.connection || !change.registers.empty()) Changed.Raise(change);
}

} // namespace zqbchwcx::reference
