#include "zqbchwcx/reference/files/StationReader.h"

#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/json/JsonCursor.h"
#include "zqbchwcx/reference/json/ModuleJson.h"
#include "zqbchwcx/reference/json/StationNames.h"

#include <memory>
#include <new>
#include <optional>
#include <utility>
#include <vector>

namespace zqbchwcx::reference {
namespace {

/// Room enough below the module of a place; anything deeper is no station.
constexpr std::size_t DeepestNesting = 16;

std::int32_t PlacesOf(const ModuleData& module, const Catalogue& catalogue)
{
    const ModuleType* type = catalogue.Find(module.orderNumber);
    return type ? type->placeCount : 1;
}

/// Reads one entry of the place list into the rack; returns the place's number.
std::int32_t ReadPlace(const JsonCursor& cursor, std::int32_t previousNumber, const Catalogue& catalogue,
                       RackData& rack)
{
    cursor.AllowMembers({"place", "usability", "module"});
    const auto placeCount = static_cast<std::int32_t>(rack.places.size());
    const JsonCursor number = cursor.Member("place");
    const std::int32_t place = number.Integer32(1, placeCount);
    if (place == previousNumber) number.Fail("the place stands twice", "der Platz steht doppelt da");
    if (place < previousNumber)
        number.Fail("places must stand in rising order", "Plätze müssen in steigender Folge stehen");

    PlaceData& data = rack.places[static_cast<std::size_t>(place - 1)];
    if (const auto usability = cursor.OptionalMember("usability")) data.usability = usability->Named(UsabilityNames);
    if (const auto module = cursor.OptionalMember("module")) {
        data.module = std::make_shared<const ModuleData>(ModuleFromJson(*module, catalogue));
        const std::int32_t span = PlacesOf(*data.module, catalogue);
        if (place + span - 1 > placeCount)
            module->Fail("the module spans " + std::to_string(span) + " places and reaches beyond place " +
                             std::to_string(placeCount) + ", the last of its rack",
                         "die Baugruppe belegt " + std::to_string(span) + " Plätze und reicht über Platz " +
                             std::to_string(placeCount) + ", den letzten ihres Trägers, hinaus");
    }
    return place;
}

RackDataPtr ReadRack(const JsonCursor& cursor, const Catalogue& catalogue)
{
    cursor.AllowMembers({"present", "placeCount", "places"});
    auto rack = std::make_shared<RackData>();
    if (const auto present = cursor.OptionalMember("present")) rack->state = present->Boolean() ? 1 : 0;
    rack->places.resize(static_cast<std::size_t>(cursor.Member("placeCount").Integer32(1, MaxPlaces)));
    std::int32_t place = 0;
    for (const JsonCursor& entry : cursor.Member("places").Elements(rack->places.size()))
        place = ReadPlace(entry, place, catalogue, *rack);
    return rack;
}

/// Reads the racks one by one as they come. What is wrong with one is told when all that stands above the racks has
/// been found in order.
class RackTaker {
public:
    explicit RackTaker(const Catalogue& catalogue) : moCatalogue(catalogue) {}

    void Take(const JsonCursor& cursor)
    {
        if (moError || mcolRacks.size() == MaxRacks) return;
        try {
            mcolRacks.push_back(ReadRack(cursor, moCatalogue));
            CheckLength(cursor);
        } catch (const FileError& error) {
            moError = error;
        }
    }

    std::vector<RackDataPtr> Racks()
    {
        if (moError) throw FileError(*moError);
        return std::move(mcolRacks);
    }

private:
    /// Selections are kept in a table of racks and places: a longer rack would have places that nobody can select.
    void CheckLength(const JsonCursor& cursor) const
    {
        const std::string length = std::to_string(mcolRacks.front()->places.size());
        if (mcolRacks.back()->places.size() == mcolRacks.front()->places.size()) return;
        cursor.Member("placeCount")
            .Fail("every rack has as many places as rack 0: " + length,
                  "jeder Träger hat so viele Plätze wie Träger 0: " + length);
    }

    const Catalogue& moCatalogue;
    std::vector<RackDataPtr> mcolRacks;
    std::optional<FileError> moError;
};

LoadedStation ReadStation(const std::string& fileName, const Catalogue& catalogue, FileSystem& files)
{
    // The state is taken first: a change while reading is then noticed later, not overlooked.
    const auto status = ReadStatus(files, fileName);
    const std::string text = ReadFile(files, fileName, LargestStationFile);
    return {ParseStation(text, fileName, catalogue), MakeStamp(status, text)};
}

} // namespace

StationData ParseStation(std::string_view text, std::string_view fileName, const Catalogue& catalogue)
{
    RackTaker racks(catalogue);
    const JsonDocument document = ParseStrictJson(
        text, fileName, {LargestStationFile, DeepestNesting},
        {"racks", [&](const JsonDocument& whole, const nlohmann::json& rack) { racks.Take(JsonCursor(whole, rack)); }});
    const JsonCursor file(document);
    ReadFormatVersion(file, StationFormat, StationFormatVersion);
    file.AllowMembers({"$schema", "format", "version", "name", "kind", "displayMode", "readOnly", "racks"});
    if (const auto schema = file.OptionalMember("$schema")) schema->Text(0, MaxTextBytes);

    StationData station;
    station.name = file.Member("name").Text(0, MaxTextBytes);
    station.kind = file.Member("kind").Named(StationKindNames);
    if (const auto mode = file.OptionalMember("displayMode")) station.displayMode = mode->Integer32(0, 2);
    if (const auto readOnly = file.OptionalMember("readOnly")) station.readOnly = readOnly->Boolean();
    const JsonCursor list = file.Member("racks");
    if (list.Elements(MaxRacks).empty())
        list.Fail("a station has at least one rack", "eine Station hat mindestens einen Träger");
    station.racks = racks.Racks();
    return station;
}

LoadedStation LoadStation(const std::string& fileName, const Catalogue& catalogue, FileSystem& files)
{
    try {
        return ReadStation(fileName, catalogue, files);
    } catch (const std::bad_alloc&) {
        throw FileError(fileName, "", "there is not enough memory for it", "der Speicher reicht dafür nicht");
    }
}

} // namespace zqbchwcx::reference
