#include "zqbchwcx/reference/json/HashJson.h"

#include <array>
#include <charconv>

namespace zqbchwcx::reference {
namespace {

constexpr std::size_t HashDigits = 16;
constexpr int Hexadecimal = 16;

} // namespace

std::string HashText(std::uint64_t hash)
{
    std::array<char, HashDigits> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), hash, Hexadecimal).ptr;
    return {digits.data(), end};
}

std::uint64_t ReadHash(const JsonCursor& cursor)
{
    const std::string text = cursor.Text(1, HashDigits);
    std::uint64_t hash = 0;
    const char* end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, hash, Hexadecimal);
    if (error != std::errc() || rest != end)
        cursor.Fail("must be a hexadecimal number", "muss eine hexadezimale Zahl sein");
    return hash;
}

} // namespace zqbchwcx::reference
