#include "tests/fuzz/FuzzInput.h"
#include "zqbchwcx/reference/files/StationReader.h"
#include "zqbchwcx/reference/files/StationWriter.h"
#include "zqbchwcx/reference/json/FileError.h"
#include "zqbchwcx/reference/model/rules/CheckStation.h"

using namespace zqbchwcx::reference;

/// Any text is refused with a FileError or is a station that can be checked, written and read again unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    StationData station;
    try {
        station = ParseStation(AsText(data, size), "fuzz", FuzzCatalogue());
    } catch (const FileError& error) {
        Demand(!error.reason.empty(), "a refusal has a reason");
        return 0;
    }
    static_cast<void>(CheckStation(station, FuzzCatalogue()));
    const std::string text = WriteStation(station);
    const StationData again = ParseStation(text, "again", FuzzCatalogue());
    Demand(SameStation(again, station), "what is written is read as the same station");
    Demand(WriteStation(again) == text, "equal stations have equal texts");
    return 0;
}
