#include "zqbchwcx/reference/commands/TerminalLine.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace zqbchwcx::reference {
namespace {

constexpr std::array<std::string_view, 12> DirectionMarks{"\u061C", "\u200E", "\u200F", "\u202A", "\u202B", "\u202C",
                                                          "\u202D", "\u202E", "\u2066", "\u2067", "\u2068", "\u2069"};
constexpr std::array<std::string_view, 2> LineEnds{"\u2028", "\u2029"};

unsigned char ByteAt(std::string_view text, std::size_t index)
{
    return index < text.size() ? static_cast<unsigned char>(text[index]) : 0xFFU;
}

/// The bytes of the control character or line end that the text begins with; 0 for none.
std::size_t ControlLength(std::string_view text)
{
    const unsigned char first = ByteAt(text, 0);
    if (first < 0x20U || first == 0x7FU) return 1;
    if (first == 0xC2U && ByteAt(text, 1) < 0xA0U) return 2; // U+0080 to U+009F
    for (const std::string_view end : LineEnds)
        if (text.starts_with(end)) return end.size();
    return 0;
}

std::size_t DirectionMarkLength(std::string_view text)
{
    const auto* const mark = std::find_if(DirectionMarks.begin(), DirectionMarks.end(),
                                          [text](std::string_view one) { return text.starts_with(one); });
    return mark == DirectionMarks.end() ? 0 : mark->size();
}

} // namespace

std::string TerminalLine(std::string_view text)
{
    std::string line;
    while (!text.empty()) {
        if (const std::size_t length = ControlLength(text)) {
            line += ' ';
            text.remove_prefix(length);
        } else if (const std::size_t mark = DirectionMarkLength(text)) {
            text.remove_prefix(mark);
        } else {
            line += text.front();
            text.remove_prefix(1);
        }
    }
    return line;
}

} // namespace zqbchwcx::reference
