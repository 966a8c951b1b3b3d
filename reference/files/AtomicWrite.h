#pragma once

#include "zqbchwcx/reference/files/FileSystem.h"

#include <string>
#include <string_view>

namespace zqbchwcx::reference {

/// Replaces the content of a file, or makes the file, in one step: whatever fails or dies on the way, the file holds
/// either all of the old content or all of the new one. Follows symbolic links and keeps the permissions. Throws
/// FileError that says which step failed and why, and whether the old content is still in place.
void AtomicWrite(FileSystem& files, const std::string& fileName, std::string_view content);

} // namespace zqbchwcx::reference
