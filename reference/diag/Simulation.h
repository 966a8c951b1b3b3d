#pragma once

#include "zqbchwcx/reference/diag/PlantCommand.h"
#include "zqbchwcx/reference/diag/RegisterMap.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <vector>

namespace zqbchwcx::reference {

/// A plant that is not there: the registers of a station, in which modules fail and recover by a script, at random and
/// by command. Equal seeds and times give equal plants. It reads no clock; the host lets time pass.
class Simulation {
public:
    /// Everything is sound at first, and the controller runs.
    explicit Simulation(const StationData& station);

    const RegisterMap& Map() const { return moMap; }
    /// From 0, as the map says.
    const std::vector<std::uint16_t>& Registers() const { return mcolRegisters; }

    /// From now on, in place of a former script.
    void Play(Script script);
    /// From now on modules fail and recover at random.
    void PlayRandomly(std::uint32_t seed);

    /// Each returns the registers that got another value, with the change counter; none when nothing has changed.
    std::vector<RegisterValue> Apply(const PlantCommand& command);
    std::vector<RegisterValue> Advance(std::chrono::milliseconds time);

private:
    struct Chance {
        std::mt19937 generator;
        std::chrono::milliseconds next; ///< when the next module fails or recovers
    };

    void Write(const PlantCommand& command);
    void PlayScript();
    void PlayChance();
    PlantCommand ChanceCommand();
    std::uint32_t Below(std::uint32_t bound);
    std::vector<RegisterValue> TakeWritten();

    RegisterMap moMap;
    std::vector<PlantItem> mcolModules;
    std::vector<std::uint16_t> mcolRegisters;
    std::vector<RegisterValue> mcolWritten;
    Script moScript;
    std::size_t mlNextStep = 0;
    std::chrono::milliseconds mNow{0};
    std::chrono::milliseconds mScriptBegan{0};
    std::optional<Chance> moChance;
};

} // namespace zqbchwcx::reference
