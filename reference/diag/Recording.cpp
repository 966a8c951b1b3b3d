#include "zqbchwcx/reference/diag/Recording.h"

#include "zqbchwcx/reference/files/FileSystem.h"
#include "zqbchwcx/reference/json/HashJson.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace zqbchwcx::reference {
namespace {

constexpr std::string_view Format = "quillon-recording";
constexpr std::int32_t Version = 1;
constexpr std::size_t LargestFile = std::size_t{64} << 20;
constexpr std::size_t MostRegisters = 65536;
constexpr std::size_t MostDamages = 1'000; ///< a file that is not meant to be a recording has no end of them
constexpr JsonLimits LineLimits{.bytes = std::size_t{1} << 20, .depth = 4, .values = 2 * MostRegisters};
constexpr std::size_t LongestTime = 32;
constexpr std::uint16_t LargestValue = std::numeric_limits<std::uint16_t>::max();

constexpr std::array ConnectionNames{
    NamedValue<ConnectionKind>{"closed", ConnectionKind::Closed},
    NamedValue<ConnectionKind>{"connecting", ConnectionKind::Connecting},
    NamedValue<ConnectionKind>{"notReachable", ConnectionKind::NotReachable},
    NamedValue<ConnectionKind>{"wrongAnswer", ConnectionKind::WrongAnswer},
    NamedValue<ConnectionKind>{"otherStation", ConnectionKind::OtherStation},
};

std::string LineText(const nlohmann::ordered_json& json)
{
    return json.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

Time ReadTime(const JsonCursor& cursor)
{
    if (const auto time = ParseTime(cursor.Text(1, LongestTime))) return *time;
    cursor.Fail("must be a time such as \"2026-03-09T07:05:01.250Z\"",
                "muss eine Zeit wie \"2026-03-09T07:05:01.250Z\" sein");
}

RecordingHead ReadHead(const JsonCursor& cursor)
{
    ReadFormatVersion(cursor, Format, Version);
    cursor.AllowMembers({"format", "version", "station", "fingerprint", "registers"});
    RecordingHead head;
    head.station = cursor.Member("station").Text(0, MaxTextBytes);
    head.fingerprint = ReadHash(cursor.Member("fingerprint"));
    head.registerCount =
        static_cast<std::size_t>(cursor.Member("registers").Integer(MapHead::FirstItem, std::int64_t{MostRegisters}));
    return head;
}

RecordedChange ReadChange(const JsonCursor& cursor, const RecordingHead& head)
{
    RecordedChange change;
    change.at = ReadTime(cursor.Member("at"));
    if (const auto lost = cursor.OptionalMember("lost")) {
        cursor.AllowMembers({"at", "lost", "reason"});
        change.connection = lost->Named(ConnectionNames);
        if (const auto reason = cursor.OptionalMember("reason")) {
            reason->AllowMembers({"en", "de"});
            change.reason = {reason->Member("en").Text(0, MaxTextBytes), reason->Member("de").Text(0, MaxTextBytes)};
        }
        return change;
    }
    cursor.AllowMembers({"at", "first", "values"});
    const auto count = static_cast<std::int64_t>(head.registerCount);
    change.first = static_cast<std::size_t>(cursor.Member("first").Integer(0, count - 1));
    for (const JsonCursor& value : cursor.Member("values").Elements(head.registerCount - change.first))
        change.values.push_back(static_cast<std::uint16_t>(value.Integer(0, LargestValue)));
    if (change.values.empty()) cursor.Member("values").Fail("must not be empty", "darf nicht leer sein");
    return change;
}

/// The next line without its end; the rest stays.
std::string_view TakeLine(std::string_view& text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    return line;
}

} // namespace

std::string WriteRecordingHead(const RecordingHead& head)
{
    return LineText({{"format", Format},
                     {"version", Version},
                     {"station", head.station},
                     {"fingerprint", HashText(head.fingerprint)},
                     {"registers", head.registerCount}});
}

std::string WriteRecordedChange(const RecordedChange& change)
{
    nlohmann::ordered_json json = {{"at", TimeText(change.at)}};
    if (change.connection == ConnectionKind::Connected) {
        json["first"] = change.first;
        json["values"] = change.values;
    } else {
        json["lost"] = NameOf(change.connection, ConnectionNames);
        if (!change.reason.en.empty()) json["reason"] = {{"en", change.reason.en}, {"de", change.reason.de}};
    }
    return LineText(json);
}

Recording ParseRecording(std::string_view text, std::string_view fileName)
{
    Recording recording;
    const JsonDocument head = ParseStrictJson(TakeLine(text), fileName, LineLimits);
    recording.head = ReadHead(JsonCursor(head));
    for (std::size_t number = 2; !text.empty() && recording.damages.size() < MostDamages; ++number) {
        const std::string_view line = TakeLine(text);
        if (line.empty()) continue;
        const std::string lineName = std::string(fileName) + ":" + std::to_string(number);
        try {
            const JsonDocument document = ParseStrictJson(line, lineName, LineLimits);
            const JsonCursor cursor(document);
            RecordedChange change = ReadChange(cursor, recording.head);
            if (!recording.changes.empty() && change.at < recording.changes.back().at)
                cursor.Member("at").Fail("is before the time of the lines above",
                                         "liegt vor der Zeit der Zeilen davor");
            recording.changes.push_back(std::move(change));
        } catch (const FileError& error) {
            recording.damages.push_back(error);
        }
    }
    return recording;
}

Recording LoadRecording(const std::string& fileName)
{
    return ParseRecording(ReadFile(SystemFiles(), fileName, LargestFile), fileName);
}

std::vector<RecordedChange> ToRecord(const Plant& plant, const PlantChange& change)
{
    // What becomes known again must be told whole: it may have been recorded long ago, or never.
    if (change.connection) return ToRecord(plant, change.at);
    std::vector<RecordedChange> lines;
    for (const RegisterValue& value : change.registers) {
        if (lines.empty() || lines.back().first + lines.back().values.size() != value.address)
            lines.push_back({change.at, ConnectionKind::Connected, {}, value.address, {}});
        lines.back().values.push_back(value.value);
    }
    return lines;
}

std::vector<RecordedChange> ToRecord(const Plant& plant, Time now)
{
    const Connection& connection = plant.State().connection;
    RecordedChange line{now, connection.kind, connection.reason, 0, {}};
    if (plant.IsKnown())
        for (const RegisterState& state : plant.State().registers) line.values.push_back(state.value);
    return {std::move(line)};
}

} // namespace zqbchwcx::reference
