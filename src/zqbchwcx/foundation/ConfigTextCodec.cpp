#include "zqbchwcx/foundation/ConfigTextCodec.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace zqbchwcx {
namespace {

constexpr char32_t Replacement = 0xFFFD;

constexpr bool IsLeadSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool IsTrailSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// A lead byte of UTF-8: how many bytes follow it, its own bits, and the smallest character of that length.
struct LeadByte {
    std::size_t followers;
    char32_t bits;
    char32_t smallest;
};

std::optional<LeadByte> ReadLeadByte(unsigned char byte)
{
    if (byte < 0x80) return LeadByte{0, byte, 0};
    if (byte >= 0xC2 && byte < 0xE0) return LeadByte{1, byte & 0x1FU, 0x80};
    if (byte >= 0xE0 && byte < 0xF0) return LeadByte{2, byte & 0x0FU, 0x800};
    if (byte >= 0xF0 && byte < 0xF5) return LeadByte{3, byte & 0x07U, 0x10000};
    return std::nullopt;
}

/// Takes one character from the front of the text, which is not empty.
char32_t TakeUtf8(std::string_view& text)
{
    const auto lead = ReadLeadByte(static_cast<unsigned char>(text.front()));
    text.remove_prefix(1);
    if (!lead) return Replacement;
    char32_t character = lead->bits;
    for (std::size_t i = 0; i < lead->followers; ++i) {
        if (text.empty() || (static_cast<unsigned char>(text.front()) & 0xC0U) != 0x80U) return Replacement;
        character = character << 6U | (static_cast<unsigned char>(text.front()) & 0x3FU);
        text.remove_prefix(1);
    }
    const bool isValid = character >= lead->smallest && character <= 0x10FFFF && !IsLeadSurrogate(character) &&
                         !IsTrailSurrogate(character);
    return isValid ? character : Replacement;
}

void AppendUtf16Unit(ByteArray& bytes, char32_t unit)
{
    bytes.push_back(static_cast<std::byte>(unit & 0xFFU));
    bytes.push_back(static_cast<std::byte>(unit >> 8U));
}

void AppendUtf16(ByteArray& bytes, char32_t character)
{
    if (character < 0x10000) {
        AppendUtf16Unit(bytes, character);
        return;
    }
    AppendUtf16Unit(bytes, 0xD800 + ((character - 0x10000) >> 10U));
    AppendUtf16Unit(bytes, 0xDC00 + ((character - 0x10000) & 0x3FFU));
}

void AppendUtf8(std::string& text, char32_t character)
{
    const auto append = [&](char32_t byte) { text += static_cast<char>(static_cast<unsigned char>(byte)); };
    const auto appendFollower = [&](unsigned shift) { append(0x80U | (character >> shift & 0x3FU)); };
    if (character < 0x80) {
        append(character);
    } else if (character < 0x800) {
        append(0xC0U | character >> 6U);
        appendFollower(0);
    } else if (character < 0x10000) {
        append(0xE0U | character >> 12U);
        appendFollower(6);
        appendFollower(0);
    } else {
        append(0xF0U | character >> 18U);
        appendFollower(12);
        appendFollower(6);
        appendFollower(0);
    }
}

} // namespace

ByteArray G_EncodeConfigText(std::string_view text)
{
    ByteArray bytes;
    bytes.reserve(2 * text.size() + 2);
    while (!text.empty()) AppendUtf16(bytes, TakeUtf8(text));
    AppendUtf16Unit(bytes, 0);
    return bytes;
}

std::string G_DecodeConfigText(const ByteArray& bytes)
{
    const std::size_t unitCount = bytes.size() / 2;
    const auto unitAt = [&](std::size_t index) {
        return static_cast<char32_t>(std::to_integer<unsigned>(bytes[2 * index]) |
                                     std::to_integer<unsigned>(bytes[2 * index + 1]) << 8U);
    };
    std::string text;
    for (std::size_t i = 0; i < unitCount && unitAt(i) != 0; ++i) {
        char32_t character = unitAt(i);
        if (IsLeadSurrogate(character) && i + 1 < unitCount && IsTrailSurrogate(unitAt(i + 1))) {
            ++i;
            character = 0x10000 + ((character - 0xD800) << 10U) + (unitAt(i) - 0xDC00);
        } else if (IsLeadSurrogate(character) || IsTrailSurrogate(character)) {
            character = Replacement;
        }
        AppendUtf8(text, character);
    }
    return text;
}

} // namespace zqbchwcx
