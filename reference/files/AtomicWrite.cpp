#include "zqbchwcx/reference/files/AtomicWrite.h"

#include "zqbchwcx/reference/files/SystemFailure.h"

#include <system_error>

#include <unistd.h>

namespace zqbchwcx::reference {
namespace {

/// Names for temporary files that an earlier program may have left behind are passed over.
constexpr int MostNameAttempts = 100;

constexpr std::string_view TemporarySuffix = ".tmp";

/// Temporary files of a target are hidden: ".plant.json.4711-0.tmp".
std::string TemporaryPrefix(const std::string& target)
{
    return "." + FileNameOf(target) + ".";
}

bool IsTemporaryOf(const std::string& target, std::string_view name)
{
    const std::string prefix = TemporaryPrefix(target);
    if (!name.starts_with(prefix) || !name.ends_with(TemporarySuffix)) return false;
    if (name.size() < prefix.size() + TemporarySuffix.size()) return false;
    const std::string_view number = name.substr(prefix.size(), name.size() - prefix.size() - TemporarySuffix.size());
    return number.find('-') != std::string_view::npos &&
           number.find_first_not_of("0123456789-") == std::string_view::npos;
}

/// What programs that died while they wrote the target have left beside it. Running ones hold theirs.
void RemoveAbandoned(FileSystem& files, const std::string& target)
{
    const std::string directory = DirectoryOf(target);
    try {
        for (const std::string& name : files.List(directory)) {
            if (!IsTemporaryOf(target, name)) continue;
            static_cast<void>(files.RemoveAbandoned(std::string(directory).append("/").append(name)));
        }
    } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch): the next write tries again
    }
}

struct TemporaryFile {
    std::string path;
    OpenFile file;
};

TemporaryFile CreateBeside(FileSystem& files, const std::string& target)
{
    const std::string stem = DirectoryOf(target) + "/" + TemporaryPrefix(target) + std::to_string(::getpid());
    for (int attempt = 0;; ++attempt) {
        const std::string path = stem + "-" + std::to_string(attempt) + std::string(TemporarySuffix);
        try {
            return {path, OpenFile(files, files.CreateNew(path))};
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
        TemporaryFile temporary = CreateBeside(moFiles, target);
        try {
            Fill(temporary, content, status);
            mStep = {"cannot be replaced", "kann nicht ersetzt werden"};
            moFiles.Rename(temporary.path, target);
        } catch (const std::system_error&) {
            RemoveQuietly(temporary.path);
            throw;
        }
        mbReplaced = true;
        // Closed no earlier: until it has its name, the open file shows others that it is not abandoned.
        mStep = {"cannot be closed", "kann nicht geschlossen werden"};
        temporary.file.Close();
        RemoveAbandoned(moFiles, target);

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
        const FileSystem::Handle handle = temporary.file.Handle();
        const std::size_t bytes = content.size();
        mStep = {"the permissions cannot be kept", "die Zugriffsrechte können nicht erhalten werden"};
        if (status) moFiles.TakePermissions(handle, *status);
        mStep = {"cannot be written", "kann nicht geschrieben werden"};
        while (!content.empty()) content.remove_prefix(moFiles.Write(handle, content));
        moFiles.Flush(handle);
        const auto written = moFiles.Status(temporary.path);
        if (!written || written->bytes != bytes) throw std::system_error(std::make_error_code(std::errc::io_error));
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
