#pragma once

#include <string>
#include <string_view>

namespace zqbchwcx::testing {

/// The full name of a file of the project, given by its name from the project's folder ("examples/…").
std::string SourceFile(std::string_view name);

} // namespace zqbchwcx::testing
