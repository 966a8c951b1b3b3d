#pragma once

#include "app/commandline/CommandLine.h"

#include <exception>
#include <ostream>

namespace quillon_ed {

/// Runs a command and returns its exit code. An error ends it and is told as "quillon-ed: FILE: POINTER: reason".
template <class Body>
int TellErrors(std::ostream& err, Body&& body)
{
    try {
        return body();
    } catch (const std::exception& error) {
        err << "quillon-ed: " << error.what() << '\n';
        return ExitFile;
    }
}

} // namespace quillon_ed
