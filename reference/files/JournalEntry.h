#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/files/FileStamp.h"
#include "zqbchwcx/reference/model/StationData.h"

#include <optional>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// Where an unsaved station came from.
struct JournalOrigin {
    std::string stationFile;        ///< empty for a station that was never saved
    std::optional<FileStamp> stamp; ///< of that file when it was read or last saved

    bool operator==(const JournalOrigin&) const = default;
};

/// What a journal holds: the origin, and the unsaved station as the text of a station file.
struct JournalEntry {
    JournalOrigin origin;
    std::string stationText;
};

/// One line about the text that follows it, and the text. The line gives the text's length and hash, so that a text
/// that was cut off or damaged is never taken for a whole one.
std::string WriteJournalEntry(const JournalEntry& entry);

/// Throws FileError with the reason for anything that is not exactly one whole entry.
JournalEntry ParseJournalEntry(std::string_view content, std::string_view fileName);

} // namespace zqbchwcx::reference
