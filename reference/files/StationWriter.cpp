#include "zqbchwcx/reference/files/StationWriter.h"

#include "zqbchwcx/reference/files/AtomicWrite.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/json/JsonPointer.h"
#include "zqbchwcx/reference/json/ModuleJson.h"
#include "zqbchwcx/reference/json/StationNames.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace zqbchwcx::reference {
namespace {

using Json = nlohmann::ordered_json;

Json PlaceToJson(std::size_t number, const PlaceData& place)
{
    Json json = {{"place", number}};
    if (place.usability != 1) json["usability"] = NameOf(place.usability, UsabilityNames);
    if (place.module) json["module"] = ModuleToJson(*place.module);
    return json;
}

Json RackToJson(const RackData& rack)
{
    Json json = {{"present", rack.state != 0}, {"placeCount", rack.places.size()}, {"places", Json::array()}};
    for (std::size_t index = 0; index < rack.places.size(); ++index) {
        const PlaceData& place = rack.places[index];
        if (place.module || place.usability != 1) json["places"].push_back(PlaceToJson(index + 1, place));
    }
    return json;
}

Json HeadToJson(const StationData& station)
{
    return {{"format", StationFormat},
            {"version", StationFormatVersion},
            {"name", station.name},
            {"kind", NameOf(station.kind, StationKindNames)},
            {"displayMode", station.displayMode},
            {"readOnly", station.readOnly}};
}

bool IsUtf8(const std::string& text)
{
    try {
        static_cast<void>(Json(text).dump());
        return true;
    } catch (const Json::type_error&) {
        return false;
    }
}

/// The pointer to the first text in the value that is not UTF-8.
std::optional<std::string> FindBrokenText(const Json& value, const std::string& pointer)
{
    if (value.is_string() && !IsUtf8(value.get_ref<const std::string&>())) return pointer;
    for (const auto& [key, element] : value.items()) {
        if (!value.is_structured()) break;
        if (value.is_object() && !IsUtf8(key)) return pointer;
        if (auto found = FindBrokenText(element, pointer + PointerToken(key))) return found;
    }
    return std::nullopt;
}

constexpr std::size_t Indentation = 2;

std::string Dump(const Json& json, const std::string& pointer, std::string_view fileName)
{
    try {
        return json.dump(int{Indentation});
    } catch (const Json::type_error&) {
        throw FileError(std::string(fileName), FindBrokenText(json, pointer).value_or(pointer),
                        "the text is not valid UTF-8", "der Text ist kein gültiges UTF-8");
    }
}

void AppendIndented(std::string_view lines, std::size_t indentation, std::string& text)
{
    for (std::size_t start = 0; start < lines.size();) {
        const std::size_t end = std::min(lines.find('\n', start), lines.size() - 1) + 1;
        text.append(indentation, ' ').append(lines.substr(start, end - start));
        start = end;
    }
}

/// The racks one by one: a large station is never held whole as JSON.
std::string StationText(const StationData& station, std::string_view fileName)
{
    std::string text = Dump(HeadToJson(station), "", fileName);
    // The list of racks goes before the end of the object.
    text.resize(text.size() - std::string_view("\n}").size());
    text += ",\n  \"racks\": [";
    for (std::size_t index = 0; index < station.racks.size(); ++index) {
        const RackDataPtr& rack = station.racks[index];
        text += index == 0 ? "\n" : ",\n";
        AppendIndented(Dump(rack ? RackToJson(*rack) : Json(), "/racks/" + std::to_string(index), fileName),
                       2 * Indentation, text);
    }
    text += "\n  ]\n}\n";
    return text;
}

} // namespace

std::string WriteStation(const StationData& station, std::string_view fileName)
{
    std::string text = StationText(station, fileName);
    // Reading it back proves, before anything is overwritten, that the file will open again. Which types the
    // catalogue knows does not matter to that.
    static_cast<void>(ParseStation(text, fileName, Catalogue()));
    return text;
}

FileStamp SaveStation(const StationData& station, const std::string& fileName, FileSystem& files)
{
    const std::string text = WriteStation(station, fileName);
    AtomicWrite(files, fileName, text);
    return MakeStamp(ReadStatus(files, fileName), text);
}

} // namespace zqbchwcx::reference
