#include "zqbchwcx/reference/files/JournalEntry.h"

#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/json/HashJson.h"
#include "zqbchwcx/reference/json/JsonCursor.h"

#include <cstdint>
#include <limits>

namespace zqbchwcx::reference {
namespace {

constexpr std::string_view Format = "quillon-journal";
constexpr std::int32_t Version = 1;
constexpr std::size_t LongestPath = 65536;
constexpr JsonLimits HeadLimits{.bytes = 2 * LongestPath, .depth = 2, .values = 100};

std::uint64_t ReadBytes(const JsonCursor& cursor)
{
    return static_cast<std::uint64_t>(cursor.Integer(0, std::numeric_limits<std::int64_t>::max()));
}

FileStamp ReadStamp(const JsonCursor& cursor)
{
    cursor.AllowMembers({"bytes", "modified", "hash"});
    return {ReadBytes(cursor.Member("bytes")),
            cursor.Member("modified")
                .Integer(std::numeric_limits<std::int64_t>::min(), std::numeric_limits<std::int64_t>::max()),
            ReadHash(cursor.Member("hash"))};
}

} // namespace

std::string WriteJournalEntry(const JournalEntry& entry)
{
    nlohmann::ordered_json head = {{"format", Format}, {"version", Version}, {"stationFile", entry.origin.stationFile}};
    if (const auto& stamp = entry.origin.stamp)
        head["stamp"] = {
            {"bytes", stamp->bytes}, {"modified", stamp->modifiedNanoseconds}, {"hash", HashText(stamp->contentHash)}};
    head["bytes"] = entry.stationText.size();
    head["hash"] = HashText(ContentHash(entry.stationText));
    return head.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n" + entry.stationText;
}

JournalEntry ParseJournalEntry(std::string_view content, std::string_view fileName)
{
    const std::size_t lineEnd = content.find('\n');
    if (lineEnd == std::string_view::npos)
        throw FileError(std::string(fileName), "", "the first line is cut off", "die erste Zeile ist abgeschnitten");
    const JsonDocument document = ParseStrictJson(content.substr(0, lineEnd), fileName, HeadLimits);
    const JsonCursor head(document);
    ReadFormatVersion(head, Format, Version);
    head.AllowMembers({"format", "version", "stationFile", "stamp", "bytes", "hash"});

    JournalEntry entry;
    entry.origin.stationFile = head.Member("stationFile").Text(0, LongestPath);
    if (const auto stamp = head.OptionalMember("stamp")) entry.origin.stamp = ReadStamp(*stamp);
    entry.stationText = content.substr(lineEnd + 1);
    if (ReadBytes(head.Member("bytes")) != entry.stationText.size())
        head.Member("bytes").Fail("the station is cut off: " + std::to_string(entry.stationText.size()) +
                                      " bytes of it are there",
                                  "die Station ist abgeschnitten: nur " + std::to_string(entry.stationText.size()) +
                                      " Bytes von ihr sind da");
    if (ReadHash(head.Member("hash")) != ContentHash(entry.stationText))
        head.Member("hash").Fail("the station is damaged: its bytes have another hash",
                                 "die Station ist beschädigt: ihre Bytes haben einen anderen Hash");
    return entry;
}

} // namespace zqbchwcx::reference
