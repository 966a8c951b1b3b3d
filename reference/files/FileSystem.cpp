#include "zqbchwcx/reference/files/FileSystem.h"

#include "zqbchwcx/reference/files/SystemFailure.h"

#include <array>
#include <exception>
#include <filesystem>
#include <system_error>
#include <utility>

namespace zqbchwcx::reference {

OpenFile::~OpenFile()
{
    try {
        Close();
    } catch (const std::system_error&) { // NOLINT(bugprone-empty-catch): what was read or written is settled by now
    }
}

void OpenFile::Close()
{
    if (const auto handle = std::exchange(mHandle, std::nullopt)) moFiles.Close(*handle);
}

std::string DirectoryOf(const std::string& path)
{
    const std::string directory = std::filesystem::path(path).parent_path().string();
    return directory.empty() ? "." : directory;
}

std::string FileNameOf(const std::string& path)
{
    return std::filesystem::path(path).filename().string();
}

std::vector<std::string> ListFiles(FileSystem& files, const std::string& directory)
{
    try {
        return files.List(directory);
    } catch (const std::system_error& error) {
        throw SystemFailure(directory, {"cannot be read", "kann nicht gelesen werden"}, error);
    }
}

namespace {

FileError TooLarge(const std::string& path, std::size_t largestBytes)
{
    constexpr std::size_t mebibyte = std::size_t{1} << 20;
    const std::string limit = largestBytes % mebibyte == 0 ? std::to_string(largestBytes / mebibyte) + " MiB"
                                                           : std::to_string(largestBytes) + " bytes";
    return {path, "", "is larger than the limit for such files, " + limit,
            "ist größer als die Grenze für solche Dateien, " + limit};
}

} // namespace

std::string ReadFile(FileSystem& files, const std::string& path, std::size_t largestBytes)
{
    try {
        const auto status = files.Status(path);
        if (!status) throw FileError(path, "", "there is no such file", "die Datei fehlt");
        if (!status->isRegularFile) throw FileError(path, "", "is not a regular file", "ist keine gewöhnliche Datei");
        if (status->bytes > largestBytes) throw TooLarge(path, largestBytes);

        const OpenFile file(files, files.OpenForReading(path));
        std::string text;
        text.reserve(static_cast<std::size_t>(status->bytes));
        std::array<char, std::size_t{64} << 10> buffer{};
        while (const std::size_t count = files.Read(file.Handle(), buffer)) {
            text.append(buffer.data(), count);
            if (text.size() > largestBytes) throw TooLarge(path, largestBytes);
        }
        return text;
    } catch (const std::system_error& error) {
        throw SystemFailure(path, {"cannot be read", "kann nicht gelesen werden"}, error);
    }
}

} // namespace zqbchwcx::reference
