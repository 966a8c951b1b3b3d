#include "zqbchwcx/reference/files/PosixFiles.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zqbchwcx::reference {
namespace {

constexpr mode_t ModeOfNewFiles = 0666; // less what the user's mask takes away
constexpr std::uint32_t PermissionBits = 07777;

[[noreturn]] void ThrowSystemError(int number)
{
    throw std::system_error(number, std::generic_category());
}

/// Repeats a call that a signal interrupted; throws when it fails.
template <class Call>
auto Checked(Call&& call)
{
    for (;;) {
        const auto result = call();
        if (result >= 0) return result;
        if (errno != EINTR) ThrowSystemError(errno);
    }
}

/// Whether the name still leads to the open file.
bool IsStillThere(int handle, const std::string& path)
{
    struct stat open = {};
    struct stat named = {};
    return ::fstat(handle, &open) == 0 && ::lstat(path.c_str(), &named) == 0 && open.st_dev == named.st_dev &&
           open.st_ino == named.st_ino;
}

} // namespace

FileSystem& SystemFiles()
{
    static PosixFiles files;
    return files;
}

std::optional<FileStatus> PosixFiles::Status(const std::string& path)
{
    struct stat found = {};
    if (::stat(path.c_str(), &found) != 0) {
        if (errno == ENOENT || errno == ENOTDIR) return std::nullopt;
        ThrowSystemError(errno);
    }
    FileStatus status;
    status.isRegularFile = S_ISREG(found.st_mode);
    status.bytes = static_cast<std::uint64_t>(found.st_size);
    status.modifiedNanoseconds = std::int64_t{found.st_mtim.tv_sec} * 1'000'000'000 + found.st_mtim.tv_nsec;
    status.mode = found.st_mode & PermissionBits;
    status.owner = found.st_uid;
    status.group = found.st_gid;
    return status;
}

bool PosixFiles::MayWrite(const std::string& path)
{
    return ::access(path.c_str(), W_OK) == 0;
}

std::string PosixFiles::ResolveLinks(const std::string& path)
{
    namespace fs = std::filesystem;
    constexpr int mostLinks = 40;
    fs::path target = path;
    for (int i = 0; fs::is_symlink(target); ++i) {
        if (i == mostLinks) ThrowSystemError(ELOOP);
        const fs::path link = fs::read_symlink(target);
        target = link.is_absolute() ? link : target.parent_path() / link;
    }
    const fs::path directory = target.parent_path();
    return (fs::canonical(directory.empty() ? "." : directory) / target.filename()).string();
}

FileSystem::Handle PosixFiles::OpenForReading(const std::string& path)
{
    return Checked([&] { return ::open(path.c_str(), O_RDONLY | O_CLOEXEC); });
}

FileSystem::Handle PosixFiles::CreateNew(const std::string& path)
{
    OpenFile file(
        *this, Checked([&] { return ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, ModeOfNewFiles); }));
    // Whoever looks for abandoned files may have been faster: then the name is as good as taken.
    const bool isHeldByOther = ::flock(file.Handle(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (isHeldByOther || !IsStillThere(file.Handle(), path)) ThrowSystemError(EEXIST);
    return file.Release();
}

bool PosixFiles::RemoveAbandoned(const std::string& path)
{
    const OpenFile file(*this, Checked([&] { return ::open(path.c_str(), O_WRONLY | O_NOFOLLOW | O_CLOEXEC); }));
    if (::flock(file.Handle(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) return false;
        ThrowSystemError(errno);
    }
    // Held now, it can get its last name no more; before that it may have.
    if (IsStillThere(file.Handle(), path)) Remove(path);
    return true;
}

FileSystem::Handle PosixFiles::OpenDirectory(const std::string& path)
{
    return Checked([&] { return ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
}

std::size_t PosixFiles::Read(Handle handle, std::span<char> buffer)
{
    return static_cast<std::size_t>(Checked([&] { return ::read(handle, buffer.data(), buffer.size()); }));
}

std::size_t PosixFiles::Write(Handle handle, std::string_view bytes)
{
    const auto written = Checked([&] { return ::write(handle, bytes.data(), bytes.size()); });
    if (written == 0) ThrowSystemError(EIO);
    return static_cast<std::size_t>(written);
}

void PosixFiles::TakePermissions(Handle handle, const FileStatus& from)
{
    // Only the administrator may give files away; others keep what they create.
    if (::fchown(handle, from.owner, from.group) != 0 && errno != EPERM && errno != EINVAL) ThrowSystemError(errno);
    Checked([&] { return ::fchmod(handle, static_cast<mode_t>(from.mode)); });
}

void PosixFiles::Flush(Handle handle)
{
    // Some file systems have no notion of flushing a directory.
    if (::fsync(handle) != 0 && errno != EINVAL && errno != ENOTSUP) ThrowSystemError(errno);
}

void PosixFiles::Close(Handle handle)
{
    // After an interruption the handle is closed all the same.
    if (::close(handle) != 0 && errno != EINTR) ThrowSystemError(errno);
}

void PosixFiles::Rename(const std::string& from, const std::string& to)
{
    Checked([&] { return ::rename(from.c_str(), to.c_str()); });
}

void PosixFiles::Remove(const std::string& path)
{
    Checked([&] { return ::unlink(path.c_str()); });
}

void PosixFiles::CreateDirectories(const std::string& path)
{
    std::filesystem::create_directories(path);
}

std::vector<std::string> PosixFiles::List(const std::string& directory)
{
    std::vector<std::string> names;
    if (!std::filesystem::is_directory(directory)) return names;
    for (const auto& entry : std::filesystem::directory_iterator(directory))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::optional<FileSystem::Handle> PosixFiles::TryLock(const std::string& path)
{
    const Handle handle = Checked([&] { return ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, ModeOfNewFiles); });
    if (::flock(handle, LOCK_EX | LOCK_NB) == 0) return handle;
    const int reason = errno;
    Close(handle);
    if (reason == EWOULDBLOCK) return std::nullopt;
    ThrowSystemError(reason);
}

} // namespace zqbchwcx::reference
