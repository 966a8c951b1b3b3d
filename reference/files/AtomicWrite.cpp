#include "zqbchwcx/reference/files/AtomicWrite.h"

#include "zqbchwcx/reference/files/SystemFailure.h"

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

LocalizedText OldUnchanged()
{
    return {"; the old content is unchanged", "; der alte Inhalt ist unverändert"};
}

LocalizedText NewInPlace()
{
    return {"; the new content is in place, but may be lost when the power fails now",
            "; der neue Inhalt ist da, kann aber bei einem Stromausfall jetzt noch verloren gehen"};
}

class AtomicReplacement {
public:
    AtomicReplacement(FileSystem& files, const std::string& fileName) : moFiles(files), msFileName(fileName) {}

    void Run(std::string_view content)
    {
        try {
            Replace(content);
        } catch (const std::system_error& error) {
            // Not even the directory is there: nothing of that name can be.
            if (error.code() == std::errc::no_such_file_or_directory) mbIsNew = true;
            throw SystemFailure(msFileName, mStep, error, Consequence());
        }
    }

private:
    LocalizedText Consequence() const
    {
        if (mbReplaced) return NewInPlace();
        return mbIsNew ? LocalizedText() : OldUnchanged();
    }

    void Replace(std::string_view content)
    {
        mStep = {"cannot be found", "kann nicht gefunden werden"};
        const std::string target = moFiles.ResolveLinks(msFileName);
        const auto status = moFiles.Status(target);
        mbIsNew = !status;
        if (status && !status->isRegularFile)
            throw FileError(msFileName, "", "is not a regular file", "ist keine gewöhnliche Datei");
        if (status && !IsWritable(target, *status))
            throw FileError(msFileName, "", "is write-protected" + OldUnchanged().en,
                            "ist schreibgeschützt" + OldUnchanged().de);

        mStep = {"no file can be made in its directory", "in ihrem Ordner lässt sich keine Datei anlegen"};
        const TemporaryFile temporary = CreateBeside(moFiles, target);
        try {
            Fill(temporary, content, status);
            mStep = {"cannot be replaced", "kann nicht ersetzt werden"};
            moFiles.Rename(temporary.path, target);
        } catch (const std::system_error&) {
            RemoveQuietly(temporary.path);
            throw;
        }
        mbReplaced = true;

        mStep = {"the directory cannot be flushed", "der Ordner kann nicht gesichert werden"};
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
        mStep = {"the permissions cannot be kept", "die Zugriffsrechte können nicht erhalten werden"};
        if (status) moFiles.TakePermissions(file.Handle(), *status);
        mStep = {"cannot be written", "kann nicht geschrieben werden"};
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
    LocalizedText mStep; ///< what is being done, for the error message
    bool mbIsNew = false;
    bool mbReplaced = false;
};

} // namespace

void AtomicWrite(FileSystem& files, const std::string& fileName, std::string_view content)
{
    AtomicReplacement(files, fileName).Run(content);
}

} // namespace zqbchwcx::reference
