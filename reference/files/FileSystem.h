#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zqbchwcx::reference {

struct FileStatus {
    bool isRegularFile = false;
    std::uint64_t bytes = 0;
    std::int64_t modifiedNanoseconds = 0; ///< since 1970-01-01 UTC
    std::uint32_t mode = 0;               ///< POSIX permission bits
    std::uint32_t owner = 0;
    std::uint32_t group = 0;
};

/// What files need of the operating system, one operation each, so that every one of them can be made to fail.
/// Paths are UTF-8. Every operation throws std::system_error with the system's reason when it fails.
class FileSystem {
public:
    using Handle = int;

    virtual ~FileSystem() = default;

    /// Null when there is nothing of that name. Follows symbolic links.
    virtual std::optional<FileStatus> Status(const std::string& path) = 0;
    virtual bool MayWrite(const std::string& path) = 0;
    /// Where the name leads when every symbolic link is followed; the last part need not exist yet.
    virtual std::string ResolveLinks(const std::string& path) = 0;

    virtual Handle OpenForReading(const std::string& path) = 0;
    /// Fails with std::errc::file_exists when the name is taken. The file is held, where the file system can do that,
    /// until the handle is closed or the program ends.
    virtual Handle CreateNew(const std::string& path) = 0;
    /// Removes a file that `CreateNew` made and nobody holds any more; false when somebody does.
    virtual bool RemoveAbandoned(const std::string& path) = 0;
    virtual Handle OpenDirectory(const std::string& path) = 0;
    /// Returns the number of bytes read; 0 at the end.
    virtual std::size_t Read(Handle handle, std::span<char> buffer) = 0;
    /// Returns the number of bytes written, at least 1; may be less than all.
    virtual std::size_t Write(Handle handle, std::string_view bytes) = 0;
    /// Owner and group as far as the user may give them away, then the permission bits.
    virtual void TakePermissions(Handle handle, const FileStatus& from) = 0;
    virtual void Flush(Handle handle) = 0;
    virtual void Close(Handle handle) = 0;

    virtual void Rename(const std::string& from, const std::string& to) = 0;
    virtual void Remove(const std::string& path) = 0;
    virtual void CreateDirectories(const std::string& path) = 0;
    /// Names without directory, sorted; none when there is no such directory.
    virtual std::vector<std::string> List(const std::string& directory) = 0;

    /// Takes the file's lock, creating the file when it is missing; null when another program, or another place in
    /// this one, holds it. The lock ends with `Close`, and with the program however that ends.
    virtual std::optional<Handle> TryLock(const std::string& path) = 0;
};

/// The operating system's own files.
FileSystem& SystemFiles();

/// Closes a handle on every path. An error of the closing itself is told only by `Close`.
class OpenFile {
public:
    OpenFile(FileSystem& files, FileSystem::Handle handle) : moFiles(files), mHandle(handle) {}
    ~OpenFile();
    OpenFile(const OpenFile&) = delete;
    OpenFile& operator=(const OpenFile&) = delete;

    FileSystem::Handle Handle() const { return *mHandle; }
    void Close();
    /// Gives the handle to the caller.
    FileSystem::Handle Release() { return *std::exchange(mHandle, std::nullopt); }

private:
    FileSystem& moFiles;
    std::optional<FileSystem::Handle> mHandle;
};

/// The directory part of a path; "." when it has none.
std::string DirectoryOf(const std::string& path);
/// The last part of a path.
std::string FileNameOf(const std::string& path);

/// The names in a directory, sorted; none when there is no such directory. Throws FileError when it cannot be read.
std::vector<std::string> ListFiles(FileSystem& files, const std::string& directory);

/// The whole file. Throws FileError when it is missing, is no regular file, cannot be read or is larger than that.
std::string ReadFile(FileSystem& files, const std::string& path, std::size_t largestBytes);

} // namespace zqbchwcx::reference
