#include "tests/fuzz/FuzzInput.h"
#include "zqbchwcx/reference/files/JournalEntry.h"
#include "zqbchwcx/reference/json/FileError.h"

using namespace zqbchwcx::reference;

/// Any content is refused with a FileError or is an entry that is written and read again unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const JournalEntry entry = ParseJournalEntry(AsText(data, size), "fuzz");
        const JournalEntry again = ParseJournalEntry(WriteJournalEntry(entry), "again");
        Demand(again.origin == entry.origin && again.stationText == entry.stationText,
               "what is written is read as the same entry");
    } catch (const FileError& error) {
        Demand(!error.reason.empty(), "a refusal has a reason");
    }
    return 0;
}
