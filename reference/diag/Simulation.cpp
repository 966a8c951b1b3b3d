#include "zqbchwcx/reference/diag/Simulation.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zqbchwcx::reference {
namespace {

using std::chrono::milliseconds;

constexpr std::uint32_t ShortestPause = 500; // milliseconds between two random changes
constexpr std::uint32_t PauseSpread = 2500;
constexpr std::uint32_t ChanceCodes = 6; ///< the codes that modules of every family have
constexpr std::uint32_t ChanceChannels = 8;

/// Kind, major, minor, patch of hardware, firmware and boot loader.
constexpr std::array<std::uint16_t, 3 * MapHead::ComponentSize> Components{1, 3, 0, 0, 2, 2, 11, 3, 3, 1, 4, 0};

} // namespace

Simulation::Simulation(const StationData& station)
    : moMap(station), mcolModules(ModuleItems(station)), mcolRegisters(moMap.FreshRegisters())
{
    mcolRegisters[MapHead::ControllerState] = static_cast<std::uint16_t>(OperatingState::Run);
    mcolRegisters[MapHead::ComponentCount] = Components.size() / MapHead::ComponentSize;
    std::copy(Components.begin(), Components.end(), mcolRegisters.begin() + MapHead::FirstComponent);
}

void Simulation::Play(Script script)
{
    moScript = std::move(script);
    mlNextStep = 0;
    mScriptBegan = mNow;
}

void Simulation::PlayRandomly(std::uint32_t seed)
{
    moChance = Chance{std::mt19937(seed), mNow + milliseconds(ShortestPause)};
}

std::vector<RegisterValue> Simulation::Apply(const PlantCommand& command)
{
    Write(command);
    return TakeWritten();
}

std::vector<RegisterValue> Simulation::Advance(milliseconds time)
{
    mNow += time;
    PlayScript();
    PlayChance();
    return TakeWritten();
}

void Simulation::Write(const PlantCommand& command)
{
    for (const RegisterValue& value : command) {
        if (mcolRegisters[value.address] == value.value) continue;
        mcolRegisters[value.address] = value.value;
        mcolWritten.push_back(value);
    }
}

void Simulation::PlayScript()
{
    for (;;) {
        for (; mlNextStep < moScript.steps.size(); ++mlNextStep) {
            const ScriptStep& step = moScript.steps[mlNextStep];
            if (mScriptBegan + step.at > mNow) return;
            Write(step.command);
        }
        if (!moScript.repeats || mScriptBegan + moScript.length > mNow) return;
        // Rounds that were missed as a whole end as the last one does.
        mScriptBegan += moScript.length * ((mNow - mScriptBegan) / moScript.length);
        mlNextStep = 0;
    }
}

void Simulation::PlayChance()
{
    if (!moChance || mcolModules.empty()) return;
    while (moChance->next <= mNow) {
        Write(ChanceCommand());
        moChance->next += milliseconds(ShortestPause + Below(PauseSpread));
    }
}

PlantCommand Simulation::ChanceCommand()
{
    const PlantItem& item = mcolModules[Below(static_cast<std::uint32_t>(mcolModules.size()))];
    const std::size_t address = *moMap.RegisterOf(item);
    StateWord state = DecodeStateWord(mcolRegisters[address]);
    if (state.HasFailure()) return {{address, 0}};
    constexpr std::uint32_t sorts = 8;
    const std::uint32_t sort = Below(sorts);
    state.isPresent = sort != 0;
    state.isInaccessible = sort == 1;
    state.isFaulty = sort == 2 || sort == 3;
    state.reportsFault = sort > 3;
    if (sort > 1) {
        state.faultCode = static_cast<std::uint8_t>(1 + Below(ChanceCodes));
        state.channel = static_cast<std::uint8_t>(Below(ChanceChannels + 1));
    }
    return {{address, EncodeStateWord(state)}};
}

std::uint32_t Simulation::Below(std::uint32_t bound)
{
    return static_cast<std::uint32_t>(moChance->generator() % bound);
}

std::vector<RegisterValue> Simulation::TakeWritten()
{
    if (mcolWritten.empty()) return {};
    std::uint16_t& counter = mcolRegisters[MapHead::ChangeCounter];
    ++counter;
    mcolWritten.push_back({MapHead::ChangeCounter, counter});
    return std::exchange(mcolWritten, {});
}

} // namespace zqbchwcx::reference
