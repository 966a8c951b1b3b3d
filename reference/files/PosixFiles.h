#pragma once

#include "zqbchwcx/reference/files/FileSystem.h"

namespace zqbchwcx::reference {

/// The files of a POSIX system.
class PosixFiles : public FileSystem {
public:
    std::optional<FileStatus> Status(const std::string& path) override;
    bool MayWrite(const std::string& path) override;
    std::string ResolveLinks(const std::string& path) override;
    Handle OpenForReading(const std::string& path) override;
    Handle CreateNew(const std::string& path) override;
    bool RemoveAbandoned(const std::string& path) override;
    Handle OpenDirectory(const std::string& path) override;
    std::size_t Read(Handle handle, std::span<char> buffer) override;
    std::size_t Write(Handle handle, std::string_view bytes) override;
    void TakePermissions(Handle handle, const FileStatus& from) override;
    void Flush(Handle handle) override;
    void Close(Handle handle) override;
    void Rename(const std::string& from, const std::string& to) override;
    void Remove(const std::string& path) override;
    void CreateDirectories(const std::string& path) override;
    std::vector<std::string> List(const std::string& directory) override;
    std::optional<Handle> TryLock(const std::string& path) override;
};

} // namespace zqbchwcx::reference
