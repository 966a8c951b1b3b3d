#include "reference/files/AtomicWrite.h"

#include "reference/json/FileError.h"

#include <system_error>

#include <unistd.h>

namespace zqbchwcx::reference {
namespace {

/// Names for temporary files that an earlier program may have left behind are passed over.
constexpr int MostNameAttempts = 100;

struct TemporaryFile {
    std::string path;
    FileSystem::Handle handle;
};

TemporaryFile CreateBeside(FileSystem& files, const std::string& target)
{
    const std::string stem = DirectoryOf(target) + "/." + FileNameOf(target) + "." + std::to_string(::getpid());
    for (int attempt = 0;; ++attempt) {
        const std::string path = stem + "-" + std::to_string(attempt) + ".tmp";
        try {
            return {path, files.CreateNew(path)};
        } catch (const std::system_error& error) {
            if (error.code() != std::errc::file_exists || attempt == MostNameAttempts) throw;
        }
    }
}

/// What is being done, for the error message.
class AtomicReplacement {
public:
    AtomicReplacement(FileSystem& files, const std::string& fileName) : moFiles(files), msFileName(fileName) {}

    void Run(std::string_view content)
    {
        try {
            Replace(content);
        } catch (const std::system_error& error) {
            throw FileError(msFileName, "",
                            std::string(msStep) + ": " + error.code().message() +
                                (mbReplaced ? "; the new content is in place, but may be lost when the power fails now"
                                            : "; the old content is unchanged"));
        }
    }

private:
    void Replace(std::string_view content)
    {
        msStep = "cannot be found";
        const std::string target = moFiles.ResolveLinks(msFileName);
        const auto status = moFiles.Status(target);
        if (status && !status->isRegularFile) throw FileError(msFileName, "", "is not a regular file");
        if (status && !IsWritable(target, *status))
            throw FileError(msFileName, "", "is write-protected; the old content is unchanged");

        msStep = "no file can be made in its directory";
        const TemporaryFile temporary = CreateBeside(moFiles, target);
        try {
            Fill(temporary, content, status);
            msStep = "cannot be replaced";
            moFiles.Rename(temporary.path, target);
        } catch (const std::system_error&) {
            RemoveQuietly(temporary.path);
            throw;
        }
        mbReplaced = true;

        msStep = "the directory cannot be flushed";
        OpenFile directory(moFiles, moFiles.OpenDirectory(DirectoryOf(target)));
        moFiles.Flush(directory.Handle());
    }

    /// The administrator may write everything; a file without any permission to write is protected all the same.
    bool IsWritable(const std::string& target, const FileStatus& status)
    {
        constexpr std::uint32_t anybodyMayWrite = 0222;
        return (status.mode & anybodyMayWrite) != 0 && moFiles.MayWrite(target);
    }

    void Fill(const TemporaryFile& temporary, std::string_view content, const std::optional<FileStatus>& status)
    {
        OpenFile file(moFiles, temporary.handle);
        msStep = "the permissions cannot be kept";
        if (status) moFiles.TakePermissions(file.Handle(), *status);
        msStep = "cannot be written";
        while (!content.empty()) content.remove_prefix(moFiles.Write(file.Handle(), content));
        moFiles.Flush(file.Handle());
        file.Close();
    }

    void RemoveQuietly(const std::string& path)
    {
        try {
            moFiles.Remove(path);
        } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch): the first failure is the one to tell
        }
    }

    FileSystem& moFiles;
    const std::string& msFileName;
    const char* msStep = "";
    bool mbReplaced = false;
};

} // namespace

void AtomicWrite(FileSystem& files, const std::string& fileName, std::string_view content)
{
    AtomicReplacement(files, fileName).Run(content);
}

} // namespace zqbchwcx::reference
