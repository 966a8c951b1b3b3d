#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace zqbchwcx::reference {

/// A directory of a test's own, removed with everything in it.
class TemporaryDirectory {
public:
    TemporaryDirectory()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "quillon-XXXXXX").string();
        if (!::mkdtemp(pattern.data())) throw std::runtime_error("no temporary directory");
        msPath = pattern;
    }
    ~TemporaryDirectory()
    {
        std::error_code ignored;
        std::filesystem::remove_all(msPath, ignored);
    }
    TemporaryDirectory(const TemporaryDirectory&) = delete;
    TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;

    const std::string& Path() const { return msPath; }
    std::string File(const std::string& name) const { return msPath + "/" + name; }

    std::string Read(const std::string& name) const
    {
        std::ifstream file(File(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    void Write(const std::string& name, const std::string& content) const
    {
        std::ofstream(File(name), std::ios::binary) << content;
    }

    std::size_t FileCount() const
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(msPath), {}));
    }

private:
    std::string msPath;
};

} // namespace zqbchwcx::reference
