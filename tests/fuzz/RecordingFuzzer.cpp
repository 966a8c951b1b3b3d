#include "tests/fuzz/FuzzInput.h"
#include "zqbchwcx/reference/diag/Recording.h"

using namespace zqbchwcx::reference;

/// Any text is refused with a FileError or is a recording whose lines are written and read again unchanged.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    try {
        const Recording recording = ParseRecording(AsText(data, size), "fuzz");
        std::string text = WriteRecordingHead(recording.head);
        for (const RecordedChange& change : recording.changes) text += WriteRecordedChange(change);
        const Recording again = ParseRecording(text, "again");
        Demand(again.head == recording.head && again.changes == recording.changes && again.damages.empty(),
               "what is written is read as the same recording");
        for (const FileError& damage : recording.damages) Demand(!damage.reason.empty(), "a damage has a reason");
    } catch (const FileError& error) {
        Demand(!error.reason.empty(), "a refusal has a reason");
    }
    return 0;
}
