#pragma once

#include "zqbchwcx/reference/diag/Recording.h"
#include "zqbchwcx/reference/files/FileSystem.h"

#include <optional>
#include <string>

namespace zqbchwcx::reference {

/// Writes what a plant tells to a file, line by line, so that all of it is there whenever the program ends.
class RecordingFile {
public:
    /// Makes the file and begins with what is known of the plant. Throws FileError, also when there is such a file
    /// already: recordings cannot be made again.
    RecordingFile(std::string fileName, const Plant& plant, const std::string& stationName, Time now,
                  FileSystem& files = SystemFiles());

    /// Throws FileError; what was written before that stays.
    void Write(const Plant& plant, const PlantChange& change);

private:
    void WriteLines(const std::vector<RecordedChange>& lines);
    void WriteText(std::string_view text);

    std::string msFileName;
    FileSystem& moFiles;
    std::optional<OpenFile> moFile;
};

} // namespace zqbchwcx::reference
