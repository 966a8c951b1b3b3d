#include "zqbchwcx/reference/diag/RecordingFile.h"

#include "zqbchwcx/reference/files/SystemFailure.h"

#include <system_error>
#include <utility>

namespace zqbchwcx::reference {

RecordingFile::RecordingFile(std::string fileName, const Plant& plant, const std::string& stationName, Time now,
                             FileSystem& files)
    : msFileName(std::move(fileName)), moFiles(files)
{
    try {
        moFile.emplace(moFiles, moFiles.CreateNew(msFileName));
    } catch (const std::system_error& error) {
        throw SystemFailure(msFileName, {"the recording cannot be made", "die Aufzeichnung kann nicht angelegt werden"},
                            error);
    }
    WriteText(WriteRecordingHead({stationName, plant.Map().Fingerprint(), plant.Map().RegisterCount()}));
    WriteLines(ToRecord(plant, now));
}

void RecordingFile::Write(const Plant& plant, const PlantChange& change)
{
    WriteLines(ToRecord(plant, change));
}

void RecordingFile::WriteLines(const std::vector<RecordedChange>& lines)
{
    for (const RecordedChange& line : lines) WriteText(WriteRecordedChange(line));
}

void RecordingFile::WriteText(std::string_view text)
{
    try {
        while (!text.empty()) text.remove_prefix(moFiles.Write(moFile->Handle(), text));
    } catch (const std::system_error& error) {
        throw SystemFailure(
            msFileName, {"the recording cannot be continued", "die Aufzeichnung kann nicht fortgesetzt werden"}, error);
    }
}

} // namespace zqbchwcx::reference
