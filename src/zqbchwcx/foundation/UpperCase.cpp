#include "zqbchwcx/foundation/UpperCase.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace zqbchwcx {
namespace {

/// Small letters from first to last, every one or every second, and how far below them their capitals are.
struct Letters {
    std::uint32_t first;
    std::uint32_t last;
    std::uint32_t step;
    std::int32_t toCapital;
};

constexpr std::array<Letters, 18> SmallLetters{{
    {0x00E0, 0x00F6, 1, -32}, // à to ö
    {0x00F8, 0x00FE, 1, -32}, // ø to þ
    {0x00FF, 0x00FF, 1, 121}, // ÿ
    {0x0101, 0x012F, 2, -1},  // ā to į
    {0x0133, 0x0137, 2, -1},  // ĳ to ķ
    {0x013A, 0x0148, 2, -1},  // ĺ to ň
    {0x014B, 0x0177, 2, -1},  // ŋ to ŷ
    {0x017A, 0x017E, 2, -1},  // ź to ž
    {0x03AC, 0x03AC, 1, -38}, // ά
    {0x03AD, 0x03AF, 1, -37}, // έ to ί
    {0x03B1, 0x03C1, 1, -32}, // α to ρ
    {0x03C2, 0x03C2, 1, -31}, // ς
    {0x03C3, 0x03CB, 1, -32}, // σ to ϋ
    {0x03CC, 0x03CC, 1, -64}, // ό
    {0x03CD, 0x03CE, 1, -63}, // ύ, ώ
    {0x0430, 0x044F, 1, -32}, // а to я
    {0x0450, 0x045F, 1, -80}, // ѐ to џ
    {0x0461, 0x0481, 2, -1},  // ѡ to ҁ
}};

std::uint32_t Capital(std::uint32_t letter)
{
    const auto* const found = std::find_if(SmallLetters.begin(), SmallLetters.end(), [letter](const Letters& range) {
        return letter >= range.first && letter <= range.last && (letter - range.first) % range.step == 0;
    });
    return found == SmallLetters.end() ? letter : letter + static_cast<std::uint32_t>(found->toCapital);
}

} // namespace

std::string G_UpperCase(std::string_view text)
{
    std::string upper(text);
    for (std::size_t i = 0; i < upper.size(); ++i) {
        if (upper[i] >= 'a' && upper[i] <= 'z') upper[i] = static_cast<char>(upper[i] - 'a' + 'A');
        // The letters beyond ASCII are all two bytes long, and so are their capitals.
        const auto first = static_cast<unsigned char>(upper[i]);
        if (first < 0xC2U || first > 0xDFU || i + 1 == upper.size()) continue;
        const auto second = static_cast<unsigned char>(upper[i + 1]);
        if ((second & 0xC0U) != 0x80U) continue;
        const std::uint32_t capital = Capital((first & 0x1FU) << 6U | (second & 0x3FU));
        upper[i] = static_cast<char>(0xC0U | capital >> 6U);
        upper[++i] = static_cast<char>(0x80U | (capital & 0x3FU));
    }
    return upper;
}

} // namespace zqbchwcx
