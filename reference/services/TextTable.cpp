#include "zqbchwcx/reference/services/TextTable.h"

#include "zqbchwcx/reference/files/FileSystem.h"
#include "zqbchwcx/reference/json/JsonCursor.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <charconv>

namespace zqbchwcx::reference {
namespace {

constexpr std::size_t LargestFile = std::size_t{4} << 20;

std::int32_t TextNumber(const std::string& key, const JsonCursor& member)
{
    std::int32_t number = 0;
    const char* end = key.data() + key.size();
    const auto [rest, error] = std::from_chars(key.data(), end, number);
    if (error != std::errc() || rest != end || number < 1) member.Fail("texts are named by numbers from 1");
    return number;
}

} // namespace

TextTable ParseTextTable(std::string_view text, std::string_view fileName, std::string_view language)
{
    const JsonDocument document = ParseStrictJson(text, fileName);
    const JsonCursor file(document);
    ReadFormatVersion(file, "quillon-texts", 1);
    file.AllowMembers({"format", "version", "language", "texts"});
    const JsonCursor fileLanguage = file.Member("language");
    if (fileLanguage.Text(1, MaxTextBytes) != language)
        fileLanguage.Fail("must be \"" + std::string(language) + "\" in this file");

    TextTable table;
    for (const auto& [key, member] : file.Member("texts").Members())
        if (!table.emplace(TextNumber(key, member), member.Text(1, MaxTextBytes)).second)
            member.Fail("another text has the same number");
    return table;
}

TextTable LoadTextTable(const std::string& fileName, std::string_view language)
{
    return ParseTextTable(ReadFile(SystemFiles(), fileName, LargestFile), fileName, language);
}

} // namespace zqbchwcx::reference
