#pragma once

#include "zqbchwcx/reference/diag/Plant.h"
#include "zqbchwcx/reference/json/FileError.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx::reference {

/// One line of a recording behind its head: registers that a plant told at one moment, or that it was lost.
struct RecordedChange {
    Time at;
    ConnectionKind connection = ConnectionKind::Connected;
    LocalizedText reason;              ///< why it was lost; may be empty
    std::size_t first = 0;             ///< number of the first register
    std::vector<std::uint16_t> values; ///< empty when the plant was lost

    bool operator==(const RecordedChange& other) const
    {
        return at == other.at && connection == other.connection && reason.en == other.reason.en &&
               reason.de == other.reason.de && first == other.first && values == other.values;
    }
};

struct RecordingHead {
    std::string station; ///< its name, as it was
    std::uint64_t fingerprint = 0;
    std::size_t registerCount = 0;

    bool operator==(const RecordingHead&) const = default;
};

/// What a recording file holds: JSON Lines, a head and then the changes in the order of their times.
struct Recording {
    RecordingHead head;
    std::vector<RecordedChange> changes;
    std::vector<FileError> damages; ///< lines that were left out; file name with line number, and the reason
};

/// Each with a line feed at its end.
std::string WriteRecordingHead(const RecordingHead& head);
std::string WriteRecordedChange(const RecordedChange& change);

/// Throws FileError when the first line is no head of a recording. Of the other lines, those that are damaged, and
/// those that go back in time, are left out.
Recording ParseRecording(std::string_view text, std::string_view fileName);

/// The same from a file.
Recording LoadRecording(const std::string& fileName);

/// The lines that tell a change of the plant; where registers lie apart, several.
std::vector<RecordedChange> ToRecord(const Plant& plant, const PlantChange& change);
/// The lines that a recording of a plant begins with: what is known of it.
std::vector<RecordedChange> ToRecord(const Plant& plant, Time now);

} // namespace zqbchwcx::reference
