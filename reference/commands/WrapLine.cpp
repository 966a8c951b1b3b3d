#include "zqbchwcx/reference/commands/WrapLine.h"

#include <algorithm>

namespace zqbchwcx::reference {
namespace {

bool BeginsCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
}

/// The bytes of the first characters, at most that many.
std::size_t BytesOf(std::string_view text, std::size_t characters)
{
    std::size_t bytes = 0;
    while (bytes < text.size() && (!BeginsCharacter(text[bytes]) || characters-- > 0)) ++bytes;
    return bytes;
}

constexpr std::size_t MoreIndentation = 2;
/// Narrower lines would hold nothing but breaks.
constexpr std::size_t LeastWidth = 20;

} // namespace

std::size_t CharacterCount(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), BeginsCharacter));
}

std::string WrapLine(std::string_view line, std::size_t width)
{
    if (width == 0 || CharacterCount(line) <= std::max(width, LeastWidth)) return std::string(line) + "\n";
    width = std::max(width, LeastWidth);
    const std::size_t own = std::min(line.find_first_not_of(' '), line.size());
    std::string indentation(std::min(own, width / 4), ' ');
    line.remove_prefix(own);
    std::string text;
    while (!line.empty()) {
        const std::size_t fits = BytesOf(line, width - indentation.size());
        std::size_t end = fits;
        if (fits < line.size()) {
            const std::size_t blank = line.rfind(' ', fits);
            if (blank != std::string_view::npos && blank > 0) end = blank;
        }
        text.append(indentation).append(line.substr(0, end)).append("\n");
        line.remove_prefix(end);
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
        if (text.find('\n') + 1 == text.size()) indentation.append(MoreIndentation, ' ');
    }
    return text;
}

} // namespace zqbchwcx::reference
