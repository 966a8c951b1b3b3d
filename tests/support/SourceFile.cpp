#include "tests/support/SourceFile.h"

namespace zqbchwcx::testing {

std::string SourceFile(std::string_view name)
{
    return std::string(QUILLON_SOURCE_DIR "/").append(name);
}

} // namespace zqbchwcx::testing
