#pragma once

#include "zqbchwcx/reference/files/FileSystem.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// What a file was like when it was read or written.
struct FileStamp {
    std::uint64_t bytes = 0;
    std::int64_t modifiedNanoseconds = 0;
    std::uint64_t contentHash = 0;

    bool operator==(const FileStamp&) const = default;
};

/// A hash that is the same in every program and on every machine (FNV-1a, 64 bits). Tells a change, not an attack.
std::uint64_t ContentHash(std::string_view content);

/// Null when there is no such file. Throws FileError when that cannot be found out.
std::optional<FileStatus> ReadStatus(FileSystem& files, const std::string& fileName);

FileStamp MakeStamp(const std::optional<FileStatus>& status, std::string_view content);

enum class FileChange { Unchanged, Changed, Missing };

/// Whether another program has changed the file since the stamp was made. A file that was only touched is unchanged.
/// Throws FileError when the file cannot be read.
FileChange ChangeSince(const FileStamp& stamp, const std::string& fileName, FileSystem& files = SystemFiles());

} // namespace zqbchwcx::reference
