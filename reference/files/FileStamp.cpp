#include "zqbchwcx/reference/files/FileStamp.h"

#include "zqbchwcx/reference/files/SystemFailure.h"

#include <system_error>

namespace zqbchwcx::reference {

std::uint64_t ContentHash(std::string_view content)
{
    constexpr std::uint64_t offsetBasis = 0xcbf29ce484222325U;
    constexpr std::uint64_t prime = 0x100000001b3U;
    std::uint64_t hash = offsetBasis;
    for (const char character : content) hash = (hash ^ static_cast<unsigned char>(character)) * prime;
    return hash;
}

std::optional<FileStatus> ReadStatus(FileSystem& files, const std::string& fileName)
{
    try {
        return files.Status(fileName);
    } catch (const std::system_error& error) {
        throw SystemFailure(fileName, {"cannot be read", "kann nicht gelesen werden"}, error);
    }
}

FileStamp MakeStamp(const std::optional<FileStatus>& status, std::string_view content)
{
    return {content.size(), status ? status->modifiedNanoseconds : 0, ContentHash(content)};
}

FileChange ChangeSince(const FileStamp& stamp, const std::string& fileName, FileSystem& files)
{
    const auto status = ReadStatus(files, fileName);
    if (!status) return FileChange::Missing;
    if (status->bytes != stamp.bytes) return FileChange::Changed;
    if (status->modifiedNanoseconds == stamp.modifiedNanoseconds) return FileChange::Unchanged;
    const std::string content = ReadFile(files, fileName, stamp.bytes);
    return ContentHash(content) == stamp.contentHash ? FileChange::Unchanged : FileChange::Changed;
}

} // namespace zqbchwcx::reference
