#pragma once

#include "zqbchwcx/reference/files/Revisions.h"

namespace quillon_ed {

/// The revisions of files in git repositories, asked of the git program. Waits for it; no event loop is needed.
class GitRevisions : public zqbchwcx::reference::Revisions {
public:
    std::vector<zqbchwcx::reference::Revision> Of(const std::string& fileName) override;
    zqbchwcx::reference::Revision Find(const std::string& fileName, const std::string& name) override;
    std::string Content(const std::string& fileName, const zqbchwcx::reference::Revision& revision) override;
};

} // namespace quillon_ed
