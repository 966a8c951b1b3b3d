#include "zqbchwcx/reference/diag/StateWord.h"

#include "zqbchwcx/foundation/model/Enumerations.h"

#include <array>
#include <cstddef>

namespace zqbchwcx::reference {
namespace {

constexpr std::uint16_t NotPluggedIn = 0xFFFF;
constexpr unsigned ChannelBit = 5;
constexpr unsigned FaultyBit = 11;
constexpr unsigned ReportBit = 12;
constexpr unsigned InaccessibleBit = 13;
constexpr unsigned OperatingBit = 14;

unsigned Bits(unsigned word, unsigned first, unsigned count)
{
    return (word >> first) & ((1U << count) - 1U);
}

} // namespace

std::string OperatingStateText(OperatingState state)
{
    static constexpr std::array texts = {"", "RUN", "STOP", "HOLD"};
    return texts[static_cast<std::size_t>(state)];
}

bool StateWord::IsInCategory(std::int32_t lCategory) const
{
    switch (lCategory) {
    case vxDiagCategory1:
        return isFaulty;
    case vxDiagCategory2:
        return reportsFault || (faultCode != 0 && !isFaulty && !isInaccessible);
    case vxDiagCategory4:
        return isInaccessible || !isPresent;
    default:
        return false;
    }
}

StateWord DecodeStateWord(std::uint16_t word)
{
    StateWord state;
    state.isPresent = word != NotPluggedIn;
    if (!state.isPresent) return state;
    state.faultCode = static_cast<std::uint8_t>(Bits(word, 0, ChannelBit));
    state.channel = static_cast<std::uint8_t>(Bits(word, ChannelBit, FaultyBit - ChannelBit));
    state.isFaulty = Bits(word, FaultyBit, 1) != 0;
    state.reportsFault = Bits(word, ReportBit, 1) != 0;
    state.isInaccessible = Bits(word, InaccessibleBit, 1) != 0;
    state.operatingState = static_cast<OperatingState>(Bits(word, OperatingBit, 2));
    return state;
}

std::uint16_t EncodeStateWord(const StateWord& state)
{
    if (!state.isPresent) return NotPluggedIn;
    return static_cast<std::uint16_t>(
        unsigned{state.faultCode} | (unsigned{state.channel} << ChannelBit) | (state.isFaulty ? 1U << FaultyBit : 0U) |
        (state.reportsFault ? 1U << ReportBit : 0U) | (state.isInaccessible ? 1U << InaccessibleBit : 0U) |
        (static_cast<unsigned>(state.operatingState) << OperatingBit));
}

} // namespace zqbchwcx::reference
