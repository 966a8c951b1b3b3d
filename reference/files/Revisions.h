#pragma once

#include <string>
#include <vector>

namespace zqbchwcx::reference {

/// A state of a file that a version control has kept.
struct Revision {
    std::string id;
    std::string date;    ///< ISO 8601, with its time zone
    std::string author;  ///< written by somebody else, as is the message
    std::string message; ///< its first line
    std::string path;    ///< what the file was called then, within the repository
};

/// Earlier states of files. Everything throws FileError when the file has none or they cannot be read.
class Revisions {
public:
    virtual ~Revisions() = default;

    /// The newest first; none for a file that was never kept.
    virtual std::vector<Revision> Of(const std::string& fileName) = 0;
    /// The one that the user names as the version control's own commands do.
    virtual Revision Find(const std::string& fileName, const std::string& name) = 0;
    /// The content of the file in one of its revisions.
    virtual std::string Content(const std::string& fileName, const Revision& revision) = 0;
};

} // namespace zqbchwcx::reference
