#pragma once

#include <cstdint>
#include <string>

namespace zqbchwcx::reference {

enum class OperatingState : std::uint8_t { None, Run, Stop, Hold };

/// "RUN", "STOP", "HOLD", the same in every language; empty for none.
std::string OperatingStateText(OperatingState state);

/// What a module or a sub-module says about itself. In a plant it is one 16-bit word: bits 0 to 4 the fault code,
/// 5 to 10 the channel, 11 faulty, 12 reports a fault, 13 not accessible, 14 and 15 the operating state; 0 is a sound
/// module without an operating state, 0xFFFF a place where no module is plugged in.
struct StateWord {
    bool isPresent = true; ///< false: nothing else holds anything
    bool isFaulty = false;
    bool reportsFault = false;
    bool isInaccessible = false;
    OperatingState operatingState = OperatingState::None;
    std::uint8_t channel = 0;   ///< from 1; 0 is the module as a whole
    std::uint8_t faultCode = 0; ///< what it means stands in the catalogue; 0 is none

    bool operator==(const StateWord&) const = default;

    bool HasFailure() const { return !isPresent || isFaulty || reportsFault || isInaccessible || faultCode != 0; }
    /// By the categories of `HasDiagState`. A failure is in one of them at least.
    bool IsInCategory(std::int32_t lCategory) const;
};

inline constexpr std::uint8_t LargestFaultCode = 30;
inline constexpr std::uint8_t LargestChannel = 63;

/// Every word has a meaning, and means the same when it is written again.
StateWord DecodeStateWord(std::uint16_t word);
std::uint16_t EncodeStateWord(const StateWord& state);

} // namespace zqbchwcx::reference
