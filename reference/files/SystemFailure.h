#pragma once

#include "zqbchwcx/reference/json/FileError.h"

#include <string>
#include <system_error>

namespace zqbchwcx::reference {

/// The error of a step that the operating system did not let happen: "step: the system's reason".
FileError SystemFailure(const std::string& fileName, const LocalizedText& step, const std::system_error& error,
                        const LocalizedText& consequence = {});

} // namespace zqbchwcx::reference
